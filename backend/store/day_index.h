// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/store/day_bounds.h"
#include "backend/store/day_entries.h"
#include "host/contract/records.h"

#include <QDate>

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

namespace wirepane {

// The headline tables of services and local days, kept in memory: 8 bytes an entry, read once from an index,
// kept right by add() and remove(). The days that were not asked for longest give way when there are too many
// entries. Thread: that of the database, which must outlive it.
class DayIndex {
public:
    explicit DayIndex(Database& database, std::size_t mostEntries = 2'000'000);

    // Appends the entries of that day to `table`, newest first. Result: how many.
    int append(std::vector<CHeadlineTable>& table, unsigned char service, QDate day);

    // A headline was written to the store; one was moved away.
    void add(const HeadlineKey& key);
    void remove(const HeadlineKey& key);
    // Forgets everything: somebody else wrote to the store.
    void clear();

    // How many entries are in memory.
    std::size_t entryCount() const { return count; }

private:
    struct Day {
        DayBounds bounds;
        DayEntries entries;
        std::int64_t lastUse = 0;
    };
    using Days = std::map<std::pair<unsigned char, QDate>, Day>;

    Day& find(unsigned char service, QDate day);
    void load(Day& day, unsigned char service);
    bool canReadAll();
    void makeRoom(const Day& kept);
    // Calls `change` with every day in memory that holds the time of `key`, and with the entry.
    template <class Change>
    void forDaysOf(const HeadlineKey& key, Change change);

    Database& store;
    Statement range;
    Statement wholeRange;
    Statement isAnyHidden;
    std::size_t most;
    std::size_t count = 0;
    std::int64_t uses = 0;
    Days days;
};

}  // namespace wirepane
