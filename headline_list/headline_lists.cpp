// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_lists.h"

HeadlineLists::HeadlineLists(BKQuoteInterface& newsBackEnd, ListOwner& listOwner)
    : backEnd(newsBackEnd), owner(listOwner) {
    for (const ListKind& kind : listKinds)
        lists[static_cast<std::size_t>(kind.index)] = std::make_unique<HeadlineList>(kind, backEnd, owner);
}

template <class Fill>
bool HeadlineLists::bRebuildFrom(ListIndex index, Fill fill) {
    HeadlineList& list = (*this)[index];
    if (list.pGetGrid() == nullptr)
        return false;
    fill(list);
    list.vRefill();
    return !list.Table().empty();
}

bool HeadlineLists::bRebuild(ListIndex list, TableKind kind, const QString& key, RelationFilter filter) {
    return bRebuildFrom(list, [&](HeadlineList& filled) {
        filled.vSetTable(ReadTables(backEnd, owner.vGetServices(), kind, key, filter));
    });
}

bool HeadlineLists::bRebuildSymbol(const CSymbolInfo& symbol, RelationFilter filter) {
    return bRebuildFrom(ListIndex::Symbol, [&](HeadlineList& filled) {
        filled.vSetTable(ReadSymbolTables(backEnd, owner.vGetServices(), symbol, filter));
    });
}

bool HeadlineLists::bRebuildWarrant(const QString& dateKey) {
    return bRebuildFrom(ListIndex::Warrant, [&](HeadlineList& filled) {
        filled.vSetTable(ReadServiceTable(backEnd, warrantService, TableKind::ByDate, dateKey));
    });
}

bool HeadlineLists::bRebuildCurrent(ListIndex list, const std::vector<ServiceEntry>& services,
                                    RelationFilter filter) {
    return bRebuildFrom(
        list, [&](HeadlineList& filled) { filled.vSetTable(ReadCurrentTables(backEnd, services, filter)); });
}

bool HeadlineLists::bRebuildAsCopy(ListIndex list, ListIndex of) {
    return bRebuildFrom(list, [&](HeadlineList& filled) { filled.vSetTable((*this)[of].Table()); });
}
