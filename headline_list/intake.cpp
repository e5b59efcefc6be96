// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/intake.h"

#include <algorithm>

namespace {

bool isTicked(std::span<const ServiceEntry> services, unsigned char service) {
    const auto entry = std::find_if(services.begin(), services.end(), [&](const ServiceEntry& candidate) {
        return candidate.service == service;
    });
    return entry != services.end() && entry->selected;
}

}  // namespace

std::vector<IntakeTarget> ListsFor(const PushedHeadline& pushed, const IntakeState& state) {
    if (!state.connected || !state.hasDatePicker)
        return {};
    const bool ticked = isTicked(state.services, pushed.headline.service);
    const auto wasShown = [&](ListIndex list) {
        return ticked && state.shown[static_cast<std::size_t>(list)];
    };
    const auto takes = [&](ListIndex list) {
        return wasShown(list) && state.exists[static_cast<std::size_t>(list)];
    };
    std::vector<IntakeTarget> targets;
    if (state.pickedDate.isValid() && state.pickedDate == state.newsDay) {
        if (pushed.headline.service == warrantService)
            targets.push_back({ListIndex::Warrant, true});
        else if (wasShown(ListIndex::All))
            targets.push_back({ListIndex::All, false});
    }
    if (takes(ListIndex::Category) && state.categoryId == pushed.categoryId)
        targets.push_back({ListIndex::Category, true});
    if (takes(ListIndex::Symbol) && state.symbolCode == pushed.symbolCode)
        targets.push_back({ListIndex::Symbol, true});
    // A pushed row says its day here, though the rows that the list was built with do not.
    if (takes(ListIndex::Relation) && state.relation != nullptr &&
        state.relation->CheckIsRelationSearch(pushed.headline, pushed.categoryId.toInt(), pushed.symbolCode))
        targets.push_back({ListIndex::Relation, true});
    return targets;
}
