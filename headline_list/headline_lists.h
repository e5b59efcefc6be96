// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/headline_list.h"
#include "headline_list/table_reading.h"

#include <QString>

#include <array>
#include <memory>
#include <vector>

// The seven headline lists of a view, and how their tables are read from the back end.
class HeadlineLists {
public:
    HeadlineLists(BKQuoteInterface& backEnd, ListOwner& owner);

    HeadlineList& operator[](ListIndex list) { return *lists[static_cast<std::size_t>(list)]; }
    const HeadlineList& operator[](ListIndex list) const { return *lists[static_cast<std::size_t>(list)]; }

    // Each reads one table anew, gives its grid the rows at the top and writes the visible ones. A list
    // without a grid is left alone. True when there are rows. From the selected services, by date (key:
    // yyyymmdd) or category (key: its id).
    bool bRebuild(ListIndex list, TableKind kind, const QString& key, RelationFilter filter = nullptr);
    // Symbol news, from the selected services.
    bool bRebuildSymbol(const CSymbolInfo& symbol, RelationFilter filter = nullptr);
    // Warrant news of a date, from the warrant service alone.
    bool bRebuildWarrant(const QString& dateKey);
    // Each ticked one of `services` gives the news of the date at which it stands.
    bool bRebuildCurrent(ListIndex list, const std::vector<ServiceEntry>& services,
                         RelationFilter filter = nullptr);
    // The table becomes that of another list, row by row.
    bool bRebuildAsCopy(ListIndex list, ListIndex of);

private:
    // `fill` gives the list its table.
    template <class Fill>
    bool bRebuildFrom(ListIndex list, Fill fill);

    BKQuoteInterface& backEnd;
    ListOwner& owner;
    std::array<std::unique_ptr<HeadlineList>, listCount> lists;
};
