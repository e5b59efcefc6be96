// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/live_news.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "headline_list/headline_table.h"
#include "host/contract/bk_quote_interface.h"
#include "news_view/mode_loading.h"
#include "news_view/news_services.h"
#include "news_view/view_context.h"

#include <algorithm>
#include <utility>

namespace wirepane {

LiveNews::LiveNews(ViewContext& viewContext, const CommonParts& commonParts, Calls given)
    : context(viewContext), parts(commonParts), calls(std::move(given)) {}

IntakeState LiveNews::state() const {
    IntakeState state = calls.choices();
    state.connected = parts.backEnd.bIsConnect() == 1;
    state.services = parts.services.savedServices();
    for (const ListKind& kind : listKinds) {
        const auto index = static_cast<std::size_t>(kind.index);
        state.exists[index] = parts.lists[kind.index].grid() != nullptr;
        state.shown[index] = parts.loading.wasShown(kind.index);
    }
    return state;
}

void LiveNews::push(const PushedHeadline& pushed) {
    const IntakeState now = state();
    if (!now.connected || !now.hasDatePicker)
        return;
    const std::vector<IntakeTarget> targets = listsFor(pushed, now);
    for (const IntakeTarget& target : targets) {
        if (parts.lists.wasRead(target.list, pushed.headline))
            continue;
        HeadlineList& list = parts.lists[target.list];
        calls.rowsMoved(target.list,
                        list.vProcessNewHeadline(pushed.headline, target.showDate, pushed.symbolCode));
        calls.rowCame(target.list, pushed);
    }
    replaceElsewhere(pushed, targets, now);
    calls.wasPushed(pushed.headline, pushed.categoryId);
    listsChanged();
}

// Rows that come and go one by one are no new rows of the list: here the story is forgotten besides.
void LiveNews::listsChanged() {
    context.refresh();
    calls.forgetShownStory();
}

// A headline that was sent again is asked by every list that has it, whether or not the list takes it in.
// True when a list other than the targets has it.
bool LiveNews::replaceElsewhere(const PushedHeadline& pushed, const std::vector<IntakeTarget>& targets,
                                const IntakeState& now) {
    const HeadlineKey key = keyOf(pushed.headline);
    const CHeadlineTable entry{key.time, key.sequence, key.service, 0, 0};
    const auto takesIt = [&](ListIndex list) {
        return std::any_of(targets.begin(), targets.end(),
                           [&](const IntakeTarget& target) { return target.list == list; });
    };
    bool isListed = false;
    for (const ListKind& kind : listKinds) {
        HeadlineList& list = parts.lists[kind.index];
        const int row = takesIt(kind.index) ? -1 : list.headlineTable().rowOfSameDay(key);
        if (row < 0)
            continue;
        isListed = true;
        NamedSymbols named;
        CNewsSymLst related;
        if (kind.index == ListIndex::Symbol && parts.backEnd.BKNEWS_GetSymbolListBySeqNo(related, entry))
            named = related.symbols;
        if (keeps(kind.index, pushed, named, now))
            list.replaceHeadline(row, pushed.headline);
        else
            calls.rowsMoved(kind.index, list.takeOut(row));
    }
    return isListed;
}

void LiveNews::replace(const PushedHeadline& pushed) {
    const IntakeState now = state();
    if (now.connected && now.hasDatePicker && replaceElsewhere(pushed, {}, now))
        listsChanged();
}

void LiveNews::takeOut(const HeadlineKey& key) {
    bool wasListed = false;
    for (const ListKind& kind : listKinds) {
        HeadlineList& list = parts.lists[kind.index];
        const HeadlinePlace place = list.takeOut(list.headlineTable().rowOf(key));
        calls.rowsMoved(kind.index, place);
        wasListed = wasListed || place.oldRow >= 0;
    }
    if (wasListed)
        listsChanged();
}

}  // namespace wirepane
