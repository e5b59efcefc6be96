// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_table.h"

#include <algorithm>

namespace wirepane {

void ListedDays::add(std::int64_t time) {
    const std::int64_t day = days.of(time);
    if (day == last)
        return;
    last = day;
    if (listed.insert(day).second)
        timeOfEach.push_back(time);
}

void ListedDays::clear() {
    *this = {};
}

std::optional<CHeadlineTable> HeadlineTable::entryAt(int row) const {
    return row >= 0 && row < size() ? std::optional(at(row)) : std::nullopt;
}

std::vector<CHeadlineTable> HeadlineTable::rows(int from, int count) const {
    std::vector<CHeadlineTable> copies;
    const int first = std::max(from, 0);
    for (int row = first; row < size() && row - first < count; ++row)
        copies.push_back(at(row));
    return copies;
}

std::vector<HeadlineKey> HeadlineTable::keys() const {
    std::vector<HeadlineKey> all;
    all.reserve(static_cast<std::size_t>(size()));
    entries.forEach([&](HeadlineRows::Ticket, const CHeadlineTable& entry) { all.push_back(keyOf(entry)); });
    return all;
}

std::array<int, 256> HeadlineTable::countsOfServices() const {
    std::array<int, 256> counts{};
    entries.forEach([&](HeadlineRows::Ticket, const CHeadlineTable& entry) { ++counts[entry.service]; });
    return counts;
}

int HeadlineTable::rowOf(const HeadlineKey& key) const {
    if (!indexed)
        return rowInOrder(key);
    const auto [row, hasMore] = byNumber.find(entries, {key.time, key.sequence, key.service, 0, 0});
    if (row < 0 || at(row).time == key.time)
        return row;
    // A wire that uses a number twice a day is rare enough to read the rows.
    return hasMore ? entries.firstWithin(row, size(),
                                         [&](const CHeadlineTable& entry) { return keyOf(entry) == key; })
                   : -1;
}

// Entries of one time and number, of several services, stand side by side in a sorted table.
int HeadlineTable::rowInOrder(const HeadlineKey& key) const {
    int row = 0;
    int end = size();
    while (row < end) {
        const int middle = row + (end - row) / 2;
        const CHeadlineTable& entry = at(middle);
        if (entry.time > key.time || (entry.time == key.time && entry.sequence > key.sequence))
            row = middle + 1;
        else
            end = middle;
    }
    for (; row < size() && at(row).time == key.time && at(row).sequence == key.sequence; ++row) {
        if (at(row).service == key.service)
            return row;
    }
    return -1;
}

void HeadlineTable::buildIndex() const {
    if (indexed)
        return;
    byNumber.rebuild(entries);
    entries.forEach([&](HeadlineRows::Ticket, const CHeadlineTable& entry) { days.add(entry.time); });
    indexed = true;
}

int HeadlineTable::rowOfSameDay(const HeadlineKey& key) const {
    buildIndex();
    return byNumber.find(entries, {key.time, key.sequence, key.service, 0, 0}).row;
}

int HeadlineTable::rowOfNumber(const HeadlineKey& key) const {
    // So few rows are read sooner than they are found by days.
    constexpr int nearTheTop = 64;
    int first = entries.firstWithin(0, std::min(size(), nearTheTop),
                                    [&](const CHeadlineTable& entry) { return haveSameNumber(entry, key); });
    if (first >= 0)
        return first;
    buildIndex();
    for (const std::int64_t time : days.times()) {
        const int row = byNumber.find(entries, {time, key.sequence, key.service, 0, 0}).row;
        if (row >= 0 && (first < 0 || row < first))
            first = row;
    }
    return first;
}

void HeadlineTable::insert(int row, const CHeadlineTable& entry) {
    buildIndex();
    entries.insert(row, entry);
    byNumber.inserted(entries, row);
    days.add(entry.time);
}

void HeadlineTable::remove(int row) {
    buildIndex();
    byNumber.removing(entries, row);
    entries.remove(row);
}

void HeadlineTable::assign(const TableRuns& runs) {
    // The old ones first, or there would be room for both.
    entries = HeadlineRows();
    entries = sortedNewestFirst(runs);
    days.clear();
    indexed = false;
}

}  // namespace wirepane
