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
    if (!indexed)
        return rowInOrder(key);
    const auto [row, hasMore] = byNumber.find(entries, {key.time, key.sequence, key.service, 0, 0});
    if (row < 0 || at(row).time == key.time)
        return row;
    // A wire that uses a number twice a day is rare enough to read the rows.
    const auto isKey = [&](const CHeadlineTable& entry) { return KeyOf(entry) == key; };
    const auto found = hasMore ? std::find_if(entries.begin() + row, entries.end(), isKey) : entries.end();
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
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

void HeadlineTable::BuildIndex() const {
    if (indexed)
        return;
    byNumber.rebuild(entries);
    indexed = true;
}

int HeadlineTable::rowOfSameDay(const HeadlineKey& key) const {
    BuildIndex();
    return byNumber.find(entries, {key.time, key.sequence, key.service, 0, 0}).row;
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
    BuildIndex();
    entries.insert(entries.begin() + row, entry);
    byNumber.inserted(entries, row);
}

void HeadlineTable::remove(int row) {
    BuildIndex();
    byNumber.removing(entries, row);
    entries.erase(entries.begin() + row);
}

void HeadlineTable::assign(const TableRuns& runs) {
    entries = SortedNewestFirst(runs);
    byNumber.clear();
    indexed = false;
}

void HeadlineTable::clear() {
    entries = {};
    indexed = true;
    byNumber.clear();
}
