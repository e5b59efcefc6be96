// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The notice in the free part of the control row: what the user must know of the view, and how he stops what
// it waits for.
#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/contract/reading_moment.h"
#include "host/contract/symbol_name.h"
#include "host/controls/s_button.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "news_view/control_ids.h"
#include "news_view/notice_line.h"
#include "news_view/trv_news_ctrl_view.h"

#include <algorithm>

namespace {

constexpr int noticeMargin = 8;

// Amber that reads well on the background.
QColor lateColour(const QColor& background) {
    return background.lightness() > 127 ? QColor(0xA8, 0x50, 0x00) : QColor(0xFF, 0xB0, 0x40);
}

bool bIsOfNotices(int id) {
    return id == ids::stopWaiting || id == ids::notice ||
           std::find(ids::noticeCommands.begin(), ids::noticeCommands.end(), id) != ids::noticeCommands.end();
}

}  // namespace

ListNotices TRVNewsCtrlView::Notices() const {
    ListNotices notices;
    notices.vTell(NoticeKind::Awaited, AwaitedText());
    if (const auto since = breaks.Since())
        notices.vTell(NoticeKind::Offline,
                      LangText(backEnd, keys::offlineSince) + QLatin1Char(' ') + TimeText(*since, false));
    if (const auto* moment = dynamic_cast<const ReadingMoment*>(&backEnd); moment && moment->IsReadAsOf())
        notices.vTell(NoticeKind::AsOf, LangText(backEnd, keys::noticeAsOf));
    notices.vTell(NoticeKind::Status, statusText.trimmed());
    notices.vTell(NoticeKind::Hint, StandingNotice());
    const auto list = ListOfNumber(currentMode);
    if (!list)
        return notices;
    if (const auto symbol = searches.Narrowing(*list))
        notices.vTell(NoticeKind::Narrowed, LangText(backEnd, keys::noticeNarrowed)
                                                .arg(symbol->code + QLatin1Char(' ') +
                                                     SymbolName(backEnd, *symbol).value_or(QString()))
                                                .simplified());
    if (lists.bHasOthersFilter(*list))
        notices.vTell(
            NoticeKind::Filtered,
            LangText(backEnd, *list == ListIndex::Relation ? keys::noticeUnfiltered : keys::noticeFiltered));
    const auto sent = searches.SentAt(*list);
    if (sent && sent->endedBreaks < breaks.Ended())
        notices.vTell(NoticeKind::BeforeBreak,
                      LangText(backEnd, keys::noticeBeforeBreak).arg(TimeText(sent->time, true)));
    return notices;
}

// The widest gap that the shown controls leave in their row.
QRect TRVNewsCtrlView::NoticeArea() const {
    QRect row = LayOut(vLayoutInput()).datePicker;
    row.setLeft(0);
    row.setRight(width() - 1);
    QList<QRect> taken{QRect(width(), row.top(), 1, 1)};
    for (const QObject* child : children()) {
        const auto* control = qobject_cast<const QWidget*>(child);
        const bool isShown = control != nullptr && !control->isWindow() && !control->isHidden();
        if (isShown && !bIsOfNotices(WindowId(control)) && control->geometry().intersects(row))
            taken.append(control->geometry());
    }
    std::sort(taken.begin(), taken.end(), [](const QRect& a, const QRect& b) { return a.left() < b.left(); });
    int end = 0;
    QRect widest;
    for (const QRect& control : taken) {
        const QRect gap(end + noticeMargin, row.top(), control.left() - end - 2 * noticeMargin, row.height());
        if (gap.width() > widest.width())
            widest = gap;
        end = std::max(end, control.right() + 1);
    }
    return widest;
}

QString TRVNewsCtrlView::AwaitedText() const {
    const std::pair<const TRVNewsPrint&, QLatin1StringView> jobs[] = {
        {printer, keys::waitingToPrint}, {saver, keys::waitingToSave}, {preview, keys::waitingToPreview}};
    QStringList texts;
    for (const auto& [job, text] : jobs) {
        if (const int awaited = job.iAwaited(); awaited > 0)
            texts.append(LangText(backEnd, text).arg(awaited));
    }
    return texts.join(QStringLiteral(" · "));
}

bool TRVNewsCtrlView::bAwaitsOutput() const {
    return printer.iAwaited() + saver.iAwaited() + preview.iAwaited() > 0;
}

void TRVNewsCtrlView::vPlaceNotices() {
    auto* line = controls.Find<NoticeLine>(ids::notice);
    auto* stop = controls.Find<SButton>(ids::stopWaiting);
    if (line == nullptr || stop == nullptr)
        return;
    QRect area = NoticeArea();
    const bool stops = bAwaitsOutput() && area.width() > area.height();
    // The keyboard does not go on to whatever comes next.
    CSuperSheetWnd* sheet = pGetCurrSheetView();
    if (!stops && stop == focusWidget() && sheet != nullptr)
        sheet->setFocus();
    stop->setGeometry(area.left(), area.top(), area.height(), area.height());
    stop->setVisible(stops);
    if (stops)
        area.setLeft(stop->geometry().right() + noticeMargin);
    line->setFont(GetViewFont());
    line->vSetColours(colText, lateColour(colBackground));
    line->vShow(Notices(), area, sheet);
}

// --- What a notice offers ---

void TRVNewsCtrlView::OnEndNarrowing() {
    if (const auto list = ListOfNumber(currentMode))
        searches.vEndNarrowing(*list);
    OnDealsSearch();
}

void TRVNewsCtrlView::OnReadUnfiltered() {
    const auto list = ListOfNumber(currentMode);
    if (!list || !lists.bHasOthersFilter(*list))
        return;
    vReadAgain(*list);
    OnShowStory();
}

void TRVNewsCtrlView::OnStopWaiting() {
    for (TRVNewsPrint* job : pJobs())
        job->vForgetAwaited();
}

void TRVNewsCtrlView::OnPutOutReady() {
    for (TRVNewsPrint* job : pJobs())
        job->vPutOutReady();
}

int TRVNewsCtrlView::iReadyForOutput() const {
    return printer.iReady() + saver.iReady() + preview.iReady();
}

void TRVNewsCtrlView::OnStopButton() {
    if (iReadyForOutput() == 0) {
        OnStopWaiting();
        return;
    }
    if (contextMenu != nullptr)
        return;
    contextMenu = new QMenu(this);
    contextMenu->setAttribute(Qt::WA_DeleteOnClose);
    vAddWaitingCommands();
    const QWidget* stop = controls.Find<SButton>(ids::stopWaiting);
    contextMenu->popup(stop->mapToGlobal(QPoint(0, stop->height())));
}

QColor TRVNewsCtrlView::TimeColour(std::int64_t time) const {
    return breaks.bHolds(time) ? lateColour(colBackground) : QColor();
}
