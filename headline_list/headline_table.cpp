// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_table.h"

#include <algorithm>

std::vector<CHeadlineTable> HeadlineTable::rows(int from, int count) const {
    std::vector<CHeadlineTable> result;
    const int first = std::max(from, 0);
    const int end = count > 0 ? std::min(size(), first + std::min(count, size())) : first;
    for (int row = first; row < end; ++row)
        result.push_back(at(row));
    return result;
}

int HeadlineTable::rowOf(const HeadlineKey& key) const {
    const std::ptrdiff_t position = index.find(oldestFirst, key);
    return position < 0 ? -1
                        : static_cast<int>(static_cast<std::ptrdiff_t>(oldestFirst.size()) - 1 - position);
}

void HeadlineTable::assign(std::vector<CHeadlineTable> newestFirst) {
    oldestFirst = std::move(newestFirst);
    std::reverse(oldestFirst.begin(), oldestFirst.end());
    index.rebuild(oldestFirst);
}

void HeadlineTable::clear() {
    oldestFirst = {};
    index.clear();
}
