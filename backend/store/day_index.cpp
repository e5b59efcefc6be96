// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/day_index.h"

#include "backend/database/database.h"
#include "backend/database/gathered_numbers.h"

#include <algorithm>
#include <span>

namespace wirepane {

namespace {
constexpr std::size_t mostDays = 10'000;  // most of them empty, then
}

DayIndex::DayIndex(Database& database, std::size_t mostEntries)
    : store(database),
      range(database,
            "SELECT gather(time, sequence) FROM headlines WHERE service = ? AND time >= ? AND time < ?"),
      wholeRange(database,
                 "SELECT gather(time, sequence) FROM all_headlines WHERE service = ? AND time >= ? AND "
                 "time < ?"),
      isAnyHidden(database, "SELECT 1 FROM import_blocks WHERE hidden LIMIT 1"),
      most(mostEntries) {}

int DayIndex::append(std::vector<CHeadlineTable>& table, unsigned char service, QDate date) {
    if (!date.isValid())
        return 0;
    const Day& day = find(service, date);
    const std::size_t size = day.entries.size();
    // Doubling keeps the appending of several services linear.
    if (table.capacity() < table.size() + size)
        table.reserve(std::max(table.size() + size, 2 * table.capacity()));
    day.entries.forEachNewestFirst([&](const DayEntry& entry) {
        table.push_back({day.bounds.begin + entry.second, entry.sequence, service, 0, 0});
    });
    return static_cast<int>(size);
}

DayIndex::Day& DayIndex::find(unsigned char service, QDate date) {
    Day& day = days[{service, date}];
    day.lastUse = ++uses;
    // The bounds of a day move when the time zone changes.
    const DayBounds bounds = boundsOf(date);
    if (day.bounds != bounds) {
        count -= day.entries.size();
        day.bounds = bounds;
        load(day, service);
        count += day.entries.size();
        makeRoom(day);
    }
    return day;
}

void DayIndex::load(Day& day, unsigned char service) {
    day.entries = {};
    Query query(canReadAll() ? wholeRange : range, service, day.bounds.begin, day.bounds.end);
    // A day that could not be read whole is read again the next time.
    if (!query.next()) {
        day.bounds = {};
        return;
    }
    const std::span<const GatheredPair> pairs = query.pairs(0);
    std::vector<DayEntry> entries;
    entries.reserve(pairs.size());
    for (const auto& [time, sequence] : pairs)
        entries.push_back(
            {static_cast<std::int32_t>(time - day.bounds.begin), static_cast<std::int32_t>(sequence)});
    // An aggregate asks for no order; the index that answers has it.
    if (!std::is_sorted(entries.begin(), entries.end()))
        std::sort(entries.begin(), entries.end());
    day.entries = DayEntries(entries);
}

// Looking at each row whether it is hidden takes a third of the reading; where nothing is, at this very
// moment of the store, none need be looked at.
bool DayIndex::canReadAll() {
    if (!store.inTransaction())
        return false;
    Query hidden(isAnyHidden);
    return !hidden.next() && !hidden.failed();
}

void DayIndex::makeRoom(const Day& kept) {
    while ((count > most && days.size() > 1) || days.size() > mostDays) {
        auto oldest = days.end();
        for (auto day = days.begin(); day != days.end(); ++day) {
            if (&day->second != &kept &&
                (oldest == days.end() || day->second.lastUse < oldest->second.lastUse))
                oldest = day;
        }
        count -= oldest->second.entries.size();
        days.erase(oldest);
    }
}

template <class Change>
void DayIndex::forDaysOf(const HeadlineKey& key, Change change) {
    for (auto day = days.lower_bound({key.service, QDate()});
         day != days.end() && day->first.first == key.service; ++day) {
        if (day->second.bounds.contains(key.time))
            change(day->second.entries,
                   DayEntry{static_cast<std::int32_t>(key.time - day->second.bounds.begin), key.sequence});
    }
}

void DayIndex::add(const HeadlineKey& key) {
    forDaysOf(key,
              [this](DayEntries& entries, const DayEntry& entry) { count += entries.add(entry) ? 1 : 0; });
}

void DayIndex::remove(const HeadlineKey& key) {
    forDaysOf(key,
              [this](DayEntries& entries, const DayEntry& entry) { count -= entries.remove(entry) ? 1 : 0; });
}

void DayIndex::clear() {
    days.clear();
    count = 0;
}

}  // namespace wirepane
