// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_table.h"

#include <algorithm>

std::vector<CHeadlineTable> HeadlineTable::rows(int from, int count) const {
    const int first = std::max(from, 0);
    const int end = count > 0 && first < size() ? first + std::min(count, size() - first) : first;
    return end > first ? std::vector<CHeadlineTable>(entries.begin() + first, entries.begin() + end)
                       : std::vector<CHeadlineTable>();
}

int HeadlineTable::rowOf(const HeadlineKey& key) const {
    return byKey.find(entries, {key.time, key.sequence, key.service, 0, 0});
}

int HeadlineTable::rowOfSameDay(const HeadlineKey& key) const {
    return byNumber.find(entries, {key.time, key.sequence, key.service, 0, 0});
}

int HeadlineTable::rowOfNumber(const HeadlineKey& key, int from) const {
    const auto found = std::find_if(entries.begin() + std::clamp(from, 0, size()), entries.end(),
                                    [&](const CHeadlineTable& entry) { return HaveSameNumber(entry, key); });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

int HeadlineTable::insertPosition(std::int64_t time) const {
    const auto earlier = std::find_if(entries.begin(), entries.end(),
                                      [&](const CHeadlineTable& entry) { return entry.time < time; });
    return static_cast<int>(earlier - entries.begin());
}

void HeadlineTable::insert(int row, const CHeadlineTable& entry) {
    entries.insert(entries.begin() + row, entry);
    byKey.inserted(entries, row);
    byNumber.inserted(entries, row);
}

void HeadlineTable::remove(int row) {
    byKey.removing(entries, row);
    byNumber.removing(entries, row);
    entries.erase(entries.begin() + row);
}

void HeadlineTable::assign(std::vector<CHeadlineTable> newestFirst) {
    entries = HeadlineRows(newestFirst.begin(), newestFirst.end());
    byKey.rebuild(entries);
    byNumber.rebuild(entries);
}

void HeadlineTable::clear() {
    entries = {};
    byKey.clear();
    byNumber.clear();
}
