// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_lists.h"

HeadlineLists::HeadlineLists(BKQuoteInterface& newsBackEnd, ListOwner& listOwner)
    : backEnd(newsBackEnd), owner(listOwner) {
    for (const ListKind& kind : listKinds)
        lists[static_cast<std::size_t>(kind.index)] = std::make_unique<HeadlineList>(kind, backEnd, owner);
}

template <class Read>
bool HeadlineLists::bRebuildFrom(ListIndex index, Read read) {
    HeadlineList& list = (*this)[index];
    if (list.pGetGrid() == nullptr)
        return false;
    list.vSetTable(read());
    list.vRefill();
    return !list.Table().empty();
}

bool HeadlineLists::bRebuild(ListIndex list, TableKind kind, const QString& key, RelationFilter filter) {
    return bRebuildFrom(list, [&] { return ReadTables(backEnd, owner.vGetServices(), kind, key, filter); });
}

bool HeadlineLists::bRebuildSymbol(const CSymbolInfo& symbol, RelationFilter filter) {
    return bRebuildFrom(ListIndex::Symbol,
                        [&] { return ReadSymbolTables(backEnd, owner.vGetServices(), symbol, filter); });
}

bool HeadlineLists::bRebuildWarrant(const QString& dateKey) {
    return bRebuildFrom(ListIndex::Warrant, [&] {
        return ReadServiceTable(backEnd, warrantService, TableKind::ByDate, dateKey);
    });
}
