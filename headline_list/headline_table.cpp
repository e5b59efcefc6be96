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
    return indexed ? byKey.find(entries, {key.time, key.sequence, key.service, 0, 0}) : rowInOrder(key);
}

// Entries of one time and number, of several services, stand side by side in a sorted table.
int HeadlineTable::rowInOrder(const HeadlineKey& key) const {
    const auto isBefore = [](const CHeadlineTable& entry, const HeadlineKey& wanted) {
        return entry.time > wanted.time || (entry.time == wanted.time && entry.sequence > wanted.sequence);
    };
    auto entry = std::lower_bound(entries.begin(), entries.end(), key, isBefore);
    for (; entry != entries.end() && entry->time == key.time && entry->sequence == key.sequence; ++entry) {
        if (entry->service == key.service)
            return static_cast<int>(entry - entries.begin());
    }
    return -1;
}

void HeadlineTable::BuildIndexes() const {
    if (indexed)
        return;
    byKey.rebuild(entries);
    byNumber.rebuild(entries);
    indexed = true;
}

int HeadlineTable::rowOfSameDay(const HeadlineKey& key) const {
    BuildIndexes();
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
    BuildIndexes();
    entries.insert(entries.begin() + row, entry);
    byKey.inserted(entries, row);
    byNumber.inserted(entries, row);
}

void HeadlineTable::remove(int row) {
    BuildIndexes();
    byKey.removing(entries, row);
    byNumber.removing(entries, row);
    entries.erase(entries.begin() + row);
}

void HeadlineTable::assign(const TableRuns& runs) {
    entries = SortedNewestFirst(runs);
    byKey.clear();
    byNumber.clear();
    indexed = false;
}

void HeadlineTable::clear() {
    entries = {};
    indexed = true;
    byKey.clear();
    byNumber.clear();
}
