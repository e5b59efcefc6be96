// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_lists.h"

#include "headline_list/table_reading.h"

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

bool HeadlineLists::bRebuildCategory(const QString& categoryId) {
    return bRebuild(ListIndex::Category,
                    ReadTables(backEnd, owner.vGetServices(), TableKind::ByCategory, categoryId));
}

bool HeadlineLists::bRebuildSymbol(const CSymbolInfo& symbol) {
    return bRebuild(ListIndex::Symbol, ReadSymbolTables(backEnd, owner.vGetServices(), symbol));
}

bool HeadlineLists::bRebuildRelation(const QString& dateKey,
                                     const std::vector<RelationCondition>& conditions) {
    return bRebuild(ListIndex::Relation,
                    ReadRelatedTables(backEnd, owner.vGetServices(), dateKey, conditions));
}

bool HeadlineLists::bRebuildWarrant(const QString& dateKey) {
    return bRebuild(ListIndex::Warrant,
                    ReadServiceTable(backEnd, warrantService, TableKind::ByDate, dateKey));
}
