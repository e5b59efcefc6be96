// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_lists.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/table_reading.h"
#include "host/contract/news_positions.h"

HeadlineLists::HeadlineLists(BKQuoteInterface& newsBackEnd, ListOwner& listOwner)
    : backEnd(newsBackEnd), owner(listOwner), positions(dynamic_cast<NewsPositions*>(&newsBackEnd)) {
    for (const ListKind& kind : listKinds)
        lists[static_cast<std::size_t>(kind.index)] = std::make_unique<HeadlineList>(kind, backEnd, owner);
}

HeadlineLists::~HeadlineLists() = default;

template <class Fill>
bool HeadlineLists::bRebuildFrom(ListIndex index, RelationFilter filter, Fill fill) {
    HeadlineList& list = (*this)[index];
    if (list.pGetGrid() == nullptr)
        return false;
    const auto number = static_cast<std::size_t>(index);
    // Before the reading: what comes meanwhile may be in it or not.
    readAt[number] = positions != nullptr ? positions->ReadPosition() : 0;
    missed[number] = false;
    othersFilter[number] = (filter != nullptr) != (index == ListIndex::Relation);
    fill(list);
    list.vRefill();
    if (onRead)
        onRead();
    return !list.Table().empty();
}

bool HeadlineLists::bWasRead(ListIndex list, const CHeadline& told) const {
    const std::int64_t position = positions != nullptr ? positions->ToldPosition() : 0;
    return position > 0 && position <= readAt[static_cast<std::size_t>(list)] &&
           (*this)[list].Table().rowOf(KeyOf(told)) >= 0;
}

bool HeadlineLists::bRebuild(ListIndex list, TableKind kind, const QString& key, RelationFilter filter) {
    return bRebuildFrom(list, filter, [&](HeadlineList& filled) {
        filled.vSetTable(ReadTables(backEnd, owner.vGetServices(), kind, key, filter));
    });
}

bool HeadlineLists::bRebuildSymbol(const CSymbolInfo& symbol, RelationFilter filter) {
    return bRebuildFrom(ListIndex::Symbol, filter, [&](HeadlineList& filled) {
        listedSymbol = symbol;
        filled.vSetTable(ReadSymbolTables(backEnd, owner.vGetServices(), symbol, filter));
    });
}

bool HeadlineLists::bRebuildWarrant(const QString& dateKey) {
    return bRebuildFrom(ListIndex::Warrant, nullptr, [&](HeadlineList& filled) {
        filled.vSetTable(ReadServiceTable(backEnd, warrantService, TableKind::ByDate, dateKey));
    });
}

bool HeadlineLists::bRebuildCurrent(ListIndex list, const std::vector<ServiceEntry>& services,
                                    RelationFilter filter) {
    return bRebuildFrom(list, filter, [&](HeadlineList& filled) {
        filled.vSetTable(ReadCurrentTables(backEnd, services, filter));
    });
}

bool HeadlineLists::bRebuildAsCopy(ListIndex list, ListIndex of) {
    return bRebuildFrom(list, nullptr, [&](HeadlineList& filled) { filled.vSetTable((*this)[of].Table()); });
}
