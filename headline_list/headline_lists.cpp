// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_lists.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/list_owner.h"
#include "headline_list/table_reading.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/fixed_services.h"
#include "host/contract/news_positions.h"

namespace wirepane {

HeadlineLists::HeadlineLists(BKQuoteInterface& newsBackEnd, ListOwner& listOwner)
    : backEnd(newsBackEnd), owner(listOwner), positions(dynamic_cast<NewsPositions*>(&newsBackEnd)) {
    for (const ListKind& kind : listKinds)
        lists[static_cast<std::size_t>(kind.index)] = std::make_unique<HeadlineList>(kind, backEnd, owner);
}

HeadlineLists::~HeadlineLists() = default;

void HeadlineLists::setOptions(const ViewOptions& options) {
    for (const auto& list : lists) {
        if (list->grid() != nullptr)
            list->setOptions(options);
    }
}

template <class Fill>
bool HeadlineLists::rebuildFrom(ListIndex index, RelationFilter filter, Fill fill) {
    HeadlineList& list = (*this)[index];
    if (list.grid() == nullptr)
        return false;
    const auto number = static_cast<std::size_t>(index);
    // Before the reading: what comes meanwhile may be in it or not.
    readAt[number] = positions != nullptr ? positions->readPosition() : 0;
    missed[number] = false;
    othersFilter[number] = (filter != nullptr) != (index == ListIndex::Relation);
    fill(list);
    list.refill();
    if (onRead)
        onRead();
    return !list.headlineTable().empty();
}

bool HeadlineLists::wasRead(ListIndex list, const CHeadline& told) const {
    const std::int64_t position = positions != nullptr ? positions->positionTold() : 0;
    return position > 0 && position <= readAt[static_cast<std::size_t>(list)] &&
           (*this)[list].headlineTable().rowOf(keyOf(told)) >= 0;
}

bool HeadlineLists::rebuild(ListIndex list, TableKind kind, const QString& key, RelationFilter filter) {
    return rebuildFrom(list, filter, [&](HeadlineList& filled) {
        filled.setTable(readTables(backEnd, owner.allServices(), kind, key, filter));
    });
}

bool HeadlineLists::rebuildSymbol(const CSymbolInfo& symbol, RelationFilter filter) {
    return rebuildFrom(ListIndex::Symbol, filter, [&](HeadlineList& filled) {
        listedSymbol = symbol;
        filled.setTable(readSymbolTables(backEnd, owner.allServices(), symbol, filter));
    });
}

bool HeadlineLists::rebuildWarrant(const QString& dateKey) {
    return rebuildFrom(ListIndex::Warrant, nullptr, [&](HeadlineList& filled) {
        filled.setTable(readServiceTable(backEnd, warrantService, TableKind::ByDate, dateKey));
    });
}

bool HeadlineLists::rebuildCurrent(ListIndex list, const std::vector<ServiceEntry>& services,
                                   RelationFilter filter) {
    return rebuildFrom(list, filter, [&](HeadlineList& filled) {
        filled.setTable(readCurrentTables(backEnd, services, filter));
    });
}

bool HeadlineLists::rebuildAsCopy(ListIndex list, ListIndex of) {
    return rebuildFrom(list, nullptr,
                       [&](HeadlineList& filled) { filled.setTable((*this)[of].headlineTable()); });
}

}  // namespace wirepane
