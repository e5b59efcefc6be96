// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_lists.h"

HeadlineLists::HeadlineLists(BKQuoteInterface& newsBackEnd, ListOwner& listOwner)
    : backEnd(newsBackEnd), owner(listOwner) {
    for (const ListKind& kind : listKinds)
        lists[static_cast<std::size_t>(kind.index)] = std::make_unique<HeadlineList>(kind, backEnd, owner);
}

bool HeadlineLists::bRebuild(ListIndex index, TableRuns runs) {
    HeadlineList& list = (*this)[index];
    list.vSetTable(std::move(runs));
    list.vRefill();
    return !list.Table().empty();
}

bool HeadlineLists::bRebuildAllNews(const QString& dateKey) {
    return bRebuild(ListIndex::All, ReadTables(backEnd, owner.vGetServices(), TableKind::ByDate, dateKey));
}

bool HeadlineLists::bRebuildSymbol(const CSymbolInfo& symbol) {
    return bRebuild(ListIndex::Symbol, ReadSymbolTables(backEnd, owner.vGetServices(), symbol));
}

bool HeadlineLists::bRebuildRelation(const QString& dateKey,
                                     const std::vector<RelationCondition>& conditions) {
    return bRebuild(ListIndex::Relation,
                    ReadTables(backEnd, owner.vGetServices(), TableKind::ByDate, dateKey, &conditions));
}

bool HeadlineLists::bRebuildWarrant(const QString& dateKey) {
    return bRebuild(ListIndex::Warrant,
                    ReadServiceTable(backEnd, warrantService, TableKind::ByDate, dateKey));
}

void HeadlineLists::vChangeNewsTable(ListIndex list, TableKind kind, const QString& key,
                                     RelationFilter filter) {
    if ((*this)[list].pGetGrid() != nullptr)
        bRebuild(list, ReadTables(backEnd, owner.vGetServices(), kind, key, filter));
}

void HeadlineLists::vChangeSymbolTable(const CSymbolInfo& symbol, RelationFilter filter) {
    if ((*this)[ListIndex::Symbol].pGetGrid() != nullptr)
        bRebuild(ListIndex::Symbol, ReadSymbolTables(backEnd, owner.vGetServices(), symbol, filter));
}
