// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The notice in the free part of the control row: what the user must know of the view, and how he stops what
// it waits for.
#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/controls/s_button.h"
#include "host/controls/super_sheet_wnd.h"
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int noticeMargin = 8;

// Amber that reads well on the background.
QColor lateColour(const QColor& background) {
    return background.lightness() > 127 ? QColor(0xA8, 0x50, 0x00) : QColor(0xFF, 0xB0, 0x40);
}

}  // namespace

// That the feed is cut off, or what the lists have to say; and before it what printing and saving wait for.
QString TRVNewsCtrlView::NoticeText() const {
    const auto offlineSince = breaks.Since();
    QStringList parts{AwaitedText(),
                      offlineSince ? LangText(backEnd, keys::offlineSince) + QLatin1Char(' ') +
                                         TimeText(*offlineSince, false)
                                   : statusText.trimmed(),
                      StandingNotice()};
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

// In the free part of the control row.
void TRVNewsCtrlView::vDrawNotice(QPainter& painter) {
    const QString text = NoticeText();
    QRect area = NoticeArea();
    if (text.isEmpty() || area.isEmpty())
        return;
    const auto* stop = controls.Find<SButton>(ids::stopWaiting);
    if (stop != nullptr && stop->isVisible())
        area.setLeft(stop->geometry().right() + noticeMargin);
    painter.setFont(GetViewFont());
    painter.setPen(breaks.Since() ? lateColour(colBackground) : colText);
    painter.drawText(area, Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width()));
}

// The widest gap that the shown controls leave in their row.
QRect TRVNewsCtrlView::NoticeArea() const {
    QRect row = LayOut(vLayoutInput()).datePicker;
    row.setLeft(0);
    row.setRight(width() - 1);
    const QWidget* stop = controls.Find<SButton>(ids::stopWaiting);
    QList<QRect> taken{QRect(width(), row.top(), 1, 1)};
    for (const QObject* child : children()) {
        const auto* control = qobject_cast<const QWidget*>(child);
        const bool isShown = control != nullptr && !control->isWindow() && !control->isHidden();
        if (isShown && control != stop && control->geometry().intersects(row))
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

void TRVNewsCtrlView::vPlaceStopButton() {
    auto* stop = controls.Find<SButton>(ids::stopWaiting);
    if (stop == nullptr)
        return;
    const QRect area = NoticeArea();
    const bool wanted = bAwaitsOutput() && area.width() > area.height();
    // The keyboard does not go on to whatever comes next.
    if (CSuperSheetWnd* sheet = pGetCurrSheetView(); !wanted && stop == focusWidget() && sheet != nullptr)
        sheet->setFocus();
    stop->setGeometry(area.left(), area.top(), area.height(), area.height());
    stop->setVisible(wanted);
    update();
}

void TRVNewsCtrlView::OnStopWaiting() {
    for (TRVNewsPrint* job : pJobs())
        job->vForgetAwaited();
}

QColor TRVNewsCtrlView::TimeColour(std::int64_t time) const {
    return breaks.bHolds(time) ? lateColour(colBackground) : QColor();
}
