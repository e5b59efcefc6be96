// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the notices of the news view are given of it, and what they offer.
#include "host/controls/s_button.h"
#include "host/controls/super_sheet_wnd.h"
#include "news_view/control_ids.h"
#include "news_view/notice_line.h"
#include "news_view/searches.h"
#include "news_view/sent_again.h"
#include "news_view/standing_searches.h"
#include "news_view/told_notices.h"
#include "news_view/trv_news_ctrl_view.h"

NoticeBoard::Surroundings TRVNewsCtrlView::noticeSurroundings() {
    return {*this,
            controls,
            [this] { return arrangement.layout().datePicker; },
            [this] {
                return NoticeBoard::Look{GetViewFont(), colText, colBackground};
            },
            [this] { return output.isWaiting(); },
            [this] { return pGetCurrSheetView(); }};
}

std::vector<NoticeBoard::Teller> TRVNewsCtrlView::noticeTellers() {
    return {
        [this](ListNotices& notices) { notices.vTell(NoticeKind::Awaited, output.awaitedText()); },
        [this](ListNotices& notices) { tellOfBackEnd(notices, backEnd, breaks); },
        [this](ListNotices& notices) {
            tellOfList(notices, backEnd, static_cast<ListIndex>(currentMode()), lists, searches->desk(),
                       breaks);
        },
        [this](ListNotices& notices) { standingSearches->tell(notices); },
    };
}

// --- What a notice offers ---

void TRVNewsCtrlView::OnReadUnfiltered() {
    const auto list = ListOfNumber(currentMode());
    if (!list || !lists.bHasOthersFilter(*list))
        return;
    sentAgain->readAgain(*list);
    OnShowStory();
}

void TRVNewsCtrlView::OnStopButton() {
    if (output.ready() == 0) {
        OnStopWaiting();
        return;
    }
    const QWidget* stop = controls.Find<SButton>(ids::stopWaiting);
    menu.popUp(output.waitingCommands(), stop->mapToGlobal(QPoint(0, stop->height())));
}

QColor TRVNewsCtrlView::TimeColour(std::int64_t time) const {
    return breaks.bHolds(time) ? lateColour(colBackground) : QColor();
}
