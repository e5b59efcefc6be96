// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the news view paints itself, and the colours and texts that it hands on.
#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "host/views/sheet_scheme.h"
#include "news_view/trv_news_ctrl_view.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Amber that reads well on the background.
QColor lateColour(const QColor& background) {
    return background.lightness() > 127 ? QColor(0xA8, 0x50, 0x00) : QColor(0xFF, 0xB0, 0x40);
}

}  // namespace

bool TRVNewsCtrlView::OnEraseBkgnd(QPainter& painter) {
    if (!laidOut)
        return false;
    SendPaintLayout();
    painter.fillRect(rect(), colBackground);
    return true;
}

void TRVNewsCtrlView::OnDraw(QPainter& painter) {
    if (GetDataState() == DataState::NotSupported) {
        vNotSupportSymbol(painter);
        vDrawFrameBorder(painter);
    } else {
        DrawTitile(painter);
        vDrawNotice(painter);
    }
}

void TRVNewsCtrlView::vSetStatusText(const QString& text) {
    if (text == statusText)
        return;
    statusText = text;
    update();
}

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
    const QRect area = NoticeArea();
    if (text.isEmpty() || area.isEmpty())
        return;
    painter.setFont(GetViewFont());
    painter.setPen(breaks.Since() ? lateColour(colBackground) : colText);
    painter.drawText(area, Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width()));
}

// The widest gap that the shown controls leave in their row.
QRect TRVNewsCtrlView::NoticeArea() const {
    constexpr int margin = 8;
    QRect row = LayOut(vLayoutInput()).datePicker;
    row.setLeft(0);
    row.setRight(width() - 1);
    QList<QRect> taken{QRect(width(), row.top(), 1, 1)};
    for (const QObject* child : children()) {
        const auto* control = qobject_cast<const QWidget*>(child);
        if (control != nullptr && control->isVisible() && control->geometry().intersects(row))
            taken.append(control->geometry());
    }
    std::sort(taken.begin(), taken.end(), [](const QRect& a, const QRect& b) { return a.left() < b.left(); });
    int end = 0;
    QRect widest;
    for (const QRect& control : taken) {
        const QRect gap(end + margin, row.top(), control.left() - end - 2 * margin, row.height());
        if (gap.width() > widest.width())
            widest = gap;
        end = std::max(end, control.right() + 1);
    }
    return widest;
}

QColor TRVNewsCtrlView::TimeColour(std::int64_t time) const {
    return breaks.bHolds(time) ? lateColour(colBackground) : QColor();
}

void TRVNewsCtrlView::DrawTitile(QPainter& painter) {
    vDrawTitle(painter);
    vDrawFrameBorder(painter);
}

void TRVNewsCtrlView::vNotSupportSymbol(QPainter& painter) {
    const QRect grid = LayOut(vLayoutInput()).grid;
    const QRect area(0, iGetTitleHeight(), grid.width(), grid.bottom() + 1 - iGetTitleHeight());
    painter.fillRect(area, colBackground);
    painter.setFont(GetViewFont());
    painter.setPen(QColor::fromRgb(colBackground.rgb() ^ 0xFFFFFFU));
    painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, LangText(backEnd, keys::noData));
}

void TRVNewsCtrlView::vChangeCast() {
    TRVQuoteBaseView::vChangeCast();
    controls.vSetFont(GetViewFont());
    vSetGridColours();
    if (NewsStoryView* pane = stage.pGetPane())
        pane->vChangeCast();
    if (CNewsRelateSymbolQuoteView* quotes = stage.pGetQuotes())
        quotes->vChangeCast();
    if (initialised)
        vSetComponentPos();
    update();
    if (TRVNewsStory* dialog = stage.pGetDialog())
        dialog->vSetFont(GetViewFont());
}

void TRVNewsCtrlView::vSetGridColours() {
    for (int list = 0; list < listCount; ++list) {
        if (CSuperSheetWnd* sheet = Sheet(list))
            ApplyHostScheme(*sheet, GetViewFont());
    }
}

void TRVNewsCtrlView::changeEvent(QEvent* event) {
    TRVQuoteBaseView::changeEvent(event);
    if (event->type() != QEvent::LanguageChange || !initialised)
        return;
    controls.vLoadLanguageString();
    vLoadToolTips();
    vLoadHints();
    if (TRVNewsStory* dialog = stage.pGetDialog())
        dialog->vLoadLanguageString();
    for (int list = 0; list < listCount; ++list) {
        if (CSuperSheetWnd* sheet = Sheet(list)) {
            SetHeadlineSheetTexts(*sheet, newsType, backEnd);
            List(static_cast<ListIndex>(list)).vForgetWrittenCells();
        }
    }
    vSetComponentPos();
}
