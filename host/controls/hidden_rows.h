// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <vector>

namespace wirepane {
class RowRuns;

// Which rows of a sheet are out of sight. Rows count from 0; places count the rows in sight alone.
class WIREPANE_HOST_EXPORT HiddenRows {
public:
    bool empty() const { return hidden.empty(); }
    int count() const { return static_cast<int>(hidden.size()); }
    bool holds(int row) const;

    // In any order; what comes back are those for which this is a change, ascending.
    std::vector<int> hide(std::vector<int> rows);
    std::vector<int> show(std::vector<int> rows);
    void clear() { hidden.clear(); }
    // The rows are others now: those that are there still stay out of sight.
    void follow(const RowRuns& runs);

    // Of a row out of sight: that of the next one in sight.
    int placeOf(int row) const;
    int rowAt(int place) const;

private:
    std::vector<int> hidden;  // ascending
};

}  // namespace wirepane
