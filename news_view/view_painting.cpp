// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the news view paints itself, and the colours and texts that it hands on.
#include "headline_list/language_keys.h"
#include "host/contract/sync_info.h"
#include "news_view/trv_news_ctrl_view.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"

#include <QEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

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
    }
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
    if (initialised)
        vSetComponentPos();
    update();
}

void TRVNewsCtrlView::vSetGridColours() {
    CSyncInfo* colours = CSyncInfo::GetSettingCFG();
    const auto named = [colours](const QString& name, const QColor& fallback) {
        const QColor colour = colours->SYS_crGetOtherColor(name);
        return colour.isValid() ? colour : fallback;
    };
    const QColor text = named(u"COLOR_LISTCTL_NORMALTEXT"_s, colText);
    const QColor alternate = named(u"COLOR_LISTCTL_BACKGROUNDSLASH"_s, colBackground);
    const QColor focused = named(u"COLOR_LISTCTL_CLICKLINE"_s, palette().color(QPalette::Highlight));
    const QColor unfocused = named(u"COLOR_LISTCTL_CLICKLINE_GRAY"_s, palette().color(QPalette::Midlight));
    const QColor header = named(u"COLOR_LISTCTL_HDBkCOLOR1"_s, palette().color(QPalette::Button));
    const QColor headerText = named(u"COLOR_LISTCTL_HDTEXTCOLOR1"_s, palette().color(QPalette::ButtonText));
    for (int list = 0; list < listCount; ++list) {
        CSuperSheetWnd* sheet = Sheet(list);
        if (sheet == nullptr)
            continue;
        sheet->vSetHeaderRowBkColor(header);
        sheet->vSetHeaderRowFgColor(headerText);
        sheet->vSetFrameColor(header);
        sheet->vSetBkColor(colBackground, alternate);
        sheet->vSetFocusColor(true, focused, unfocused);
        sheet->vSetFgColor(text);
        sheet->vSetFont(GetViewFont());
    }
}

void TRVNewsCtrlView::changeEvent(QEvent* event) {
    TRVQuoteBaseView::changeEvent(event);
    if (event->type() != QEvent::LanguageChange || !initialised)
        return;
    controls.vLoadLanguageString();
    stage.pGetDialog()->vLoadLanguageString();
    for (int list = 0; list < listCount; ++list) {
        if (CSuperSheetWnd* sheet = Sheet(list)) {
            SetHeadlineSheetTexts(*sheet, newsType, backEnd);
            List(static_cast<ListIndex>(list)).vForgetWrittenCells();
        }
    }
    vSetComponentPos();
}
