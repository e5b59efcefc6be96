// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/row_identities.h"
#include "headline_list/row_index.h"
#include "headline_list/sort_order.h"
#include "host/contract/local_days.h"
#include "host/contract/records.h"

#include <array>
#include <cstdint>
#include <optional>
#include <unordered_set>
#include <vector>

namespace wirepane {

// The local calendar days that a list's headlines fall on, each told by one of its times.
class ListedDays {
public:
    void add(std::int64_t time);
    void clear();
    const std::vector<std::int64_t>& times() const { return timeOfEach; }

private:
    LocalDays days;
    std::unordered_set<std::int64_t> listed;
    std::vector<std::int64_t> timeOfEach;
    std::optional<std::int64_t> last;  // most headlines fall on the day of the one before
};

// The entries of one headline list: row 0 is the newest, as far as the list is sorted (headlines that were
// sent again leave it unsorted). Rows come and go and are found in time that hardly grows with the list.
class HeadlineTable {
public:
    int size() const { return entries.size(); }
    bool empty() const { return entries.empty(); }

    // The entry of a row in [0, size()).
    CHeadlineTable at(int row) const { return entries.at(row); }
    // From the top down; some milliseconds for a million.
    std::vector<HeadlineKey> keys() const;
    // How many entries each service has. Looks at all of them.
    std::array<int, 256> countsOfServices() const;
    // The entry of any row; nothing when there is no such row.
    std::optional<CHeadlineTable> entryAt(int row) const;

    // Up to `count` entries from row `from` on, cut at the end of the table.
    std::vector<CHeadlineTable> rows(int from, int count) const;

    // The first row that has this key; -1 when there is none.
    int rowOf(const HeadlineKey& key) const;
    // The first row with the service and number of the key on its local calendar day; -1 when there is none.
    int rowOfSameDay(const HeadlineKey& key) const;
    // The first row with the service and number of the key, on whatever day; -1 when there is none. Costs as
    // much as there are days in the table.
    int rowOfNumber(const HeadlineKey& key) const;

    // The first row from the top that is earlier than `time`, size() when there is none: where a headline of
    // that time is put in.
    int insertPosition(std::int64_t time) const { return entries.firstEarlierThan(time); }

    // Puts an entry in before `row`, in [0, size()].
    void insert(int row, const CHeadlineTable& entry);
    // Takes out a row in [0, size()).
    void remove(int row);

    // Replaces all entries by those of the runs, newest first. They are searched by their order until
    // buildIndex, so that opening a day does not wait for them.
    void assign(const TableRuns& runs);
    // Makes the table ready for pushes; the first push does it where nobody else did. Reads all rows once
    // after an assign.
    void buildIndex() const;

private:
    int rowInOrder(const HeadlineKey& key) const;

    HeadlineRows entries;
    mutable RowIndex<SameNumberOnDay> byNumber;
    mutable ListedDays days;
    mutable bool indexed = true;  // false: `entries` are sorted, the index is to be built
};

}  // namespace wirepane
