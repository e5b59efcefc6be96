// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/hidden_rows.h"

#include "host/controls/row_runs.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace wirepane {

namespace {

void putInOrder(std::vector<int>& rows) {
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
}

}  // namespace

bool HiddenRows::holds(int row) const {
    return std::binary_search(hidden.begin(), hidden.end(), row);
}

std::vector<int> HiddenRows::hide(std::vector<int> rows) {
    putInOrder(rows);
    std::vector<int> changed;
    std::set_difference(rows.begin(), rows.end(), hidden.begin(), hidden.end(), std::back_inserter(changed));
    const auto middle = hidden.insert(hidden.end(), changed.begin(), changed.end());
    std::inplace_merge(hidden.begin(), middle, hidden.end());
    return changed;
}

std::vector<int> HiddenRows::show(std::vector<int> rows) {
    putInOrder(rows);
    std::vector<int> changed;
    std::set_intersection(rows.begin(), rows.end(), hidden.begin(), hidden.end(),
                          std::back_inserter(changed));
    std::erase_if(hidden, [&](int row) { return std::binary_search(changed.begin(), changed.end(), row); });
    return changed;
}

void HiddenRows::follow(const RowRuns& runs) {
    if (hidden.empty())
        return;
    std::vector<int> moved;
    int row = 0;
    for (const RowRuns::Run& run : runs.runs()) {
        if (run.first != RowRuns::isNew) {
            const auto first = std::lower_bound(hidden.begin(), hidden.end(), run.first);
            const auto end = std::lower_bound(first, hidden.end(), run.first + run.count);
            std::transform(first, end, std::back_inserter(moved),
                           [&](int old) { return old - run.first + row; });
        }
        row += run.count;
    }
    hidden = std::move(moved);
}

int HiddenRows::placeOf(int row) const {
    return row - static_cast<int>(std::lower_bound(hidden.begin(), hidden.end(), row) - hidden.begin());
}

// Above the i-th row out of sight, `hidden[i] - i` rows are in sight.
int HiddenRows::rowAt(int place) const {
    int low = 0;
    int high = count();
    while (low < high) {
        const int middle = (low + high) / 2;
        if (hidden[static_cast<std::size_t>(middle)] - middle <= place)
            low = middle + 1;
        else
            high = middle;
    }
    return place + low;
}

}  // namespace wirepane
