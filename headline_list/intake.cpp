// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/intake.h"

#include "host/contract/fixed_services.h"

#include <algorithm>

namespace wirepane {

namespace {

bool isTicked(std::span<const ServiceEntry> services, unsigned char service) {
    const auto entry = std::find_if(services.begin(), services.end(), [&](const ServiceEntry& candidate) {
        return candidate.service == service;
    });
    return entry != services.end() && entry->selected;
}

// What a list is about: its topic, its symbol, its conditions. Lists without any are about everything.
bool concerns(ListIndex list, const PushedHeadline& pushed, const IntakeState& state) {
    switch (list) {
        case ListIndex::Category:
            return state.categoryId == pushed.categoryId;
        case ListIndex::Symbol:
            return state.symbolCode == pushed.symbolCode;
        case ListIndex::Relation:
            return state.relation != nullptr &&
                   state.relation->CheckIsRelationSearch(pushed.headline, pushed.categoryId.toInt(),
                                                         pushed.symbolCode);
        default:
            return true;
    }
}

bool names(const std::vector<CSymbolInfo>& symbols, unsigned char market, const QString& code) {
    return std::any_of(symbols.begin(), symbols.end(), [&](const CSymbolInfo& symbol) {
        return symbol.code == code && (symbol.market == market || symbol.market == 0);
    });
}

}  // namespace

std::vector<IntakeTarget> listsFor(const PushedHeadline& pushed, const IntakeState& state) {
    if (!state.connected || !state.hasDatePicker)
        return {};
    const bool ticked = isTicked(state.services, pushed.headline.service);
    const auto wasShown = [&](ListIndex list) {
        return ticked && state.shown[static_cast<std::size_t>(list)];
    };
    const auto takes = [&](ListIndex list) {
        return wasShown(list) && state.exists[static_cast<std::size_t>(list)] &&
               concerns(list, pushed, state);
    };
    std::vector<IntakeTarget> targets;
    if (state.pickedDate.isValid() && state.pickedDate == state.newsDay) {
        if (pushed.headline.service == warrantService)
            targets.push_back({ListIndex::Warrant, true});
        else if (wasShown(ListIndex::All))
            targets.push_back({ListIndex::All, false});
    }
    // A pushed row says its day in the relation list, though the rows that it was built with do not.
    for (const ListIndex list : {ListIndex::Category, ListIndex::Symbol, ListIndex::Relation}) {
        if (takes(list))
            targets.push_back({list, true});
    }
    return targets;
}

bool keeps(ListIndex list, const PushedHeadline& pushed, const NamedSymbols& symbols,
           const IntakeState& state) {
    const bool isUnknown = (list == ListIndex::Category && !state.categoryId) ||
                           (list == ListIndex::Symbol && !state.symbolCode);
    if (isUnknown || concerns(list, pushed, state))
        return true;
    return list == ListIndex::Symbol && symbols && names(*symbols, state.symbolMarket, *state.symbolCode);
}

}  // namespace wirepane
