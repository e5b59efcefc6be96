// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Headlines that arrive while the view is open.
#include "headline_list/intake.h"
#include "host/contract/clock.h"
#include "host/controls/s_date_time_ctrl.h"
#include "news_view/control_ids.h"
#include "news_view/searches.h"
#include "news_view/standing_searches.h"
#include "news_view/trv_news_ctrl_view.h"

#include <algorithm>

IntakeState TRVNewsCtrlView::vIntakeState() const {
    IntakeState state;
    state.connected = backEnd.bIsConnect() == 1;
    state.hasDatePicker = bHasDay();
    if (!state.connected || !state.hasDatePicker)
        return state;
    state.pickedDate = dates.Picked();
    state.newsDay = dates.NewsDay();
    state.services = services.Saved();
    state.relation = &standingSearches->tickedKeySets();
    for (const ListKind& kind : listKinds) {
        const auto index = static_cast<std::size_t>(kind.index);
        state.exists[index] = lists[kind.index].pGetGrid() != nullptr;
        state.shown[index] = loading.bWasShown(kind.index);
    }
    state.categoryId = SelectedCategoryId();
    // While another mode is shown the list may hold another symbol's news than the combo names.
    const auto symbol = symbols.SelectedSymbol();
    if (symbol && symbol->code == lists.ListedSymbol().code) {
        state.symbolCode = symbol->code;
        state.symbolMarket = symbol->market;
    }
    return state;
}

void TRVNewsCtrlView::RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                                      const QString& symbolCode) {
    const IntakeState state = vIntakeState();
    if (headline == nullptr || !state.connected || !state.hasDatePicker)
        return;
    const PushedHeadline pushed{*headline, categoryId, symbolCode};
    const std::vector<IntakeTarget> targets = ListsFor(pushed, state);
    for (const IntakeTarget& target : targets) {
        if (lists.bWasRead(target.list, *headline))
            continue;
        vKeepShownStory(target.list, List(target.list).vProcessNewHeadline(*headline, target.showDate));
    }
    vReplaceElsewhere(pushed, targets, state);
    searches->notePushed(*headline);
    if (headline->service != warrantService && CategoryIndex(categoryId) < 0)
        categoryMissed |= categoriesMissed.insert(categoryId).second;
    vUpdateView();
    forgetShownStory();
}

// A headline that was sent again is asked by every list that has it, whether or not the list takes it in.
// True when a list other than the targets has it.
bool TRVNewsCtrlView::vReplaceElsewhere(const PushedHeadline& pushed,
                                        const std::vector<IntakeTarget>& targets, const IntakeState& state) {
    const HeadlineKey key = KeyOf(pushed.headline);
    const CHeadlineTable entry{key.time, key.sequence, key.service, 0, 0};
    const auto takesIt = [&](ListIndex list) {
        return std::any_of(targets.begin(), targets.end(),
                           [&](const IntakeTarget& target) { return target.list == list; });
    };
    bool isListed = false;
    for (const ListKind& kind : listKinds) {
        HeadlineList& list = List(kind.index);
        const int row = takesIt(kind.index) ? -1 : list.Table().rowOfSameDay(key);
        if (row < 0)
            continue;
        isListed = true;
        NamedSymbols named;
        CNewsSymLst related;
        if (kind.index == ListIndex::Symbol && backEnd.BKNEWS_GetSymbolListBySeqNo(related, entry))
            named = related.symbols;
        if (Keeps(kind.index, pushed, named, state))
            list.vReplaceHeadline(row, pushed.headline);
        else
            vKeepShownStory(kind.index, list.vTakeOut(row));
    }
    return isListed;
}

void TRVNewsCtrlView::vHeadlineReplaced(const CHeadline* headline, const QString& categoryId,
                                        const QString& symbolCode) {
    const IntakeState state = vIntakeState();
    if (headline == nullptr || !state.connected || !state.hasDatePicker ||
        !vReplaceElsewhere({*headline, categoryId, symbolCode}, {}, state))
        return;
    vUpdateView();
    forgetShownStory();
}

void TRVNewsCtrlView::vHeadlineGone(const HeadlineKey& key) {
    bool wasListed = false;
    for (const ListKind& kind : listKinds) {
        const HeadlinePlace place = List(kind.index).vTakeOut(List(kind.index).Table().rowOf(key));
        vKeepShownStory(kind.index, place);
        wasListed = wasListed || place.oldRow >= 0;
    }
    if (!wasListed)
        return;
    vUpdateView();
    forgetShownStory();
}

void TRVNewsCtrlView::vConnectionChanged(bool connected) {
    if (connected)
        breaks.vRestored(host_clock::now());
    else
        breaks.vLost(host_clock::now());
    vPlaceNotices();
    update();
}
