// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/key_index.h"
#include "host/contract/records.h"

#include <vector>

// The entries of one headline list. Row 0 is the newest; behind that the storage runs the other way, so that
// a new headline goes to its cheap end.
class HeadlineTable {
public:
    int size() const { return static_cast<int>(oldestFirst.size()); }
    bool empty() const { return oldestFirst.empty(); }

    // The entry of a row in [0, size()).
    const CHeadlineTable& at(int row) const { return oldestFirst[oldestFirst.size() - 1 - std::size_t(row)]; }

    // Up to `count` entries from row `from` on, cut at the end of the table.
    std::vector<CHeadlineTable> rows(int from, int count) const;

    // The first row that has this key; -1 when there is none.
    int rowOf(const HeadlineKey& key) const;

    void assign(std::vector<CHeadlineTable> newestFirst);
    void clear();

private:
    std::vector<CHeadlineTable> oldestFirst;
    KeyIndex index;
};
