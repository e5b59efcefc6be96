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

    // Each rebuilds one table, gives its grid the rows at the top and writes the visible ones. True when
    // there are rows. Dates are keys: yyyymmdd.
    bool bRebuildAllNews(const QString& dateKey);
    bool bRebuildSymbol(const CSymbolInfo& symbol);
    bool bRebuildRelation(const QString& dateKey, const std::vector<RelationCondition>& conditions);
    bool bRebuildWarrant(const QString& dateKey);

    // Reads a list again after the set of chosen services has changed. A list without a grid is left alone.
    void vChangeNewsTable(ListIndex list, TableKind kind, const QString& key, RelationFilter filter);
    void vChangeSymbolTable(const CSymbolInfo& symbol, RelationFilter filter);

private:
    bool bRebuild(ListIndex list, TableRuns runs);

    BKQuoteInterface& backEnd;
    ListOwner& owner;
    std::array<std::unique_ptr<HeadlineList>, listCount> lists;
};
