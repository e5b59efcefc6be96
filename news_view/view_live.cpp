// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Headlines that arrive while the view is open.
#include "headline_list/intake.h"
#include "host/contract/clock.h"
#include "host/controls/s_date_time_ctrl.h"
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "story/news_story_view.h"

IntakeState TRVNewsCtrlView::vIntakeState() const {
    IntakeState state;
    state.connected = backEnd.bIsConnect() == 1;
    state.hasDatePicker = controls.Find<SDateTimeCtrl>(ids::datePicker) != nullptr;
    if (!state.connected || !state.hasDatePicker)
        return state;
    state.pickedDate = dates.Picked();
    state.newsDay = dates.NewsDay();
    state.services = services.Saved();
    state.relation = &tickedKeySets;
    for (const ListKind& kind : listKinds) {
        const auto index = static_cast<std::size_t>(kind.index);
        state.exists[index] = lists[kind.index].pGetGrid() != nullptr;
        state.shown[index] = loading.bWasShown(kind.index);
    }
    state.categoryId = SelectedCategoryId();
    if (const auto symbol = symbols.SelectedSymbol())
        state.symbolCode = symbol->code;
    return state;
}

void TRVNewsCtrlView::RecvNewHeadLine(const CHeadline* headline, const QString& categoryId,
                                      const QString& symbolCode) {
    const IntakeState state = vIntakeState();
    if (headline == nullptr || !state.connected || !state.hasDatePicker)
        return;
    for (const IntakeTarget& target : ListsFor({*headline, categoryId, symbolCode}, state))
        vKeepShownStory(target.list, List(target.list).vProcessNewHeadline(*headline, target.showDate));
    if (currentMode == static_cast<int>(ListIndex::WarningTerm))
        pushedToSearch[headline->service] = *headline;
    vUpdateView();
    vForgetShownStory();
}

void TRVNewsCtrlView::vConnectionChanged(bool connected) {
    if (connected)
        breaks.vRestored(host_clock::now());
    else
        breaks.vLost(host_clock::now());
    update();
}

// The pane keeps its story while rows come and go above it.
void TRVNewsCtrlView::vKeepShownStory(ListIndex list, const HeadlinePlace& place) {
    NewsStoryView* pane = stage.pGetPane();
    if (pane == nullptr || !bPaneShowsStories() || place.row < 0 ||
        static_cast<int>(list) != pane->iGetTable())
        return;
    const int shown = pane->GetHeadLinePos();
    if (place.oldRow == shown)
        pane->SetHeadLinePos(place.row);
    else if (place.row <= shown && (place.oldRow < 0 || place.oldRow > shown))
        pane->SetHeadLinePos(shown + 1);
}
