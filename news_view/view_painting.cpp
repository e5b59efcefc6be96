// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the news view paints itself, and the colours and texts that it hands on.
#include "headline_list/headline_list.h"
#include "headline_list/language_keys.h"
#include "host/contract/colour_roles.h"
#include "host/controls/row_look.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "host/views/sheet_scheme.h"
#include "news_view/trv_news_ctrl_view.h"
#include "news_view/view_parts.h"
#include "search/news_relate_symbol_quote_view.h"
#include "story/news_story_view.h"
#include "story/trv_news_story.h"

#include <QEvent>
#include <QPainter>

using namespace wirepane;

bool TRVNewsCtrlView::OnEraseBkgnd(QPainter& painter) {
    if (!parts->arrangement.isPlaced())
        return false;
    SendPaintLayout();
    painter.fillRect(rect(), colBackground);
    // Strip and controls belong to the window, not to the list below them.
    const ViewLayout places = parts->arrangement.layout();
    painter.fillRect(0, 0, width(), places.grid.top(), roleColour(ColourRole::Raised, colBackground));
    // Where the tabs end, so that it runs on beyond them.
    painter.fillRect(0, places.tabStrip.bottom() - 2, width(), 1,
                     roleColour(ColourRole::Line, colBackground));
    return true;
}

void TRVNewsCtrlView::OnDraw(QPainter& painter) {
    // Empty lists that say why say this, too.
    const bool isSaid = parts->settings.options[ViewOption::EmptyStates];
    if (currentDataState() == DataState::NotSupported && !isSaid) {
        vNotSupportSymbol(painter);
        drawFrameBorder(painter);
    } else {
        DrawTitile(painter);
    }
}

void TRVNewsCtrlView::DrawTitile(QPainter& painter) {
    drawTitle(painter);
    drawFrameBorder(painter);
}

void TRVNewsCtrlView::vNotSupportSymbol(QPainter& painter) {
    const QRect grid = parts->arrangement.layout().grid;
    const QRect area(0, titleHeight(), grid.width(), grid.bottom() + 1 - titleHeight());
    painter.fillRect(area, colBackground);
    painter.setFont(GetViewFont());
    painter.setPen(QColor::fromRgb(colBackground.rgb() ^ 0xFFFFFFU));
    painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, langText(parts->backEnd, keys::noData));
}

void TRVNewsCtrlView::vChangeCast() {
    TRVQuoteBaseView::vChangeCast();
    parts->controls.setFont(GetViewFont());
    // The density of rows is the user's to change while he reads.
    if (settingsReader != nullptr)
        parts->settings.options.readAgain(ViewOption::RowAir, *settingsReader, settingsPath);
    if (auto* strip = parts->controls.find<CXTPTabControl>(ids::tabStrip))
        strip->SetColorSet({hostColour(QStringLiteral("COLOR_LISTCTL_HDBkCOLOR1"), {}),
                            hostColour(QStringLiteral("COLOR_LISTCTL_HDTEXTCOLOR1"), {})});
    for (const ListKind& kind : listKinds) {
        if (CSuperSheetWnd* grid = parts->listOf(kind.index).grid()) {
            applyHostScheme(*grid, GetViewFont());
            parts->listOf(kind.index).setOptions(parts->settings.options);
            // Colours of topics are those of the scheme in which their cells were written.
            parts->listOf(kind.index).forgetWrittenCells();
            parts->listOf(kind.index).vFillHeadline();
        }
    }
    if (NewsStoryView* pane = parts->stage.storyPane())
        pane->vChangeCast();
    if (CNewsRelateSymbolQuoteView* quotes = parts->stage.relatedQuotes()) {
        quotes->vChangeCast();
        quotes->setLook(quoteLook(parts->settings.options));
    }
    if (parts->initialised)
        vSetComponentPos();
    update();
    for (TRVNewsStory* window : parts->stage.windows())
        window->vSetFont(GetViewFont());
    parts->storyInput.applySetting();
}

void TRVNewsCtrlView::changeEvent(QEvent* event) {
    TRVQuoteBaseView::changeEvent(event);
    if (event->type() != QEvent::LanguageChange || !parts->initialised)
        return;
    parts->controls.loadTexts();
    parts->days.loadTexts();
    parts->shortcuts.loadToolTips();
    parts->standingSearches.loadHints();
    parts->emptyLists.followSoon();
    parts->categories.learnCombo();
    parts->symbolMode.nameMarkets();
    for (TRVNewsStory* window : parts->stage.windows())
        window->vLoadLanguageString();
    for (int list = 0; list < listCount; ++list) {
        if (CSuperSheetWnd* sheet = sheetOf(list)) {
            setHeadlineSheetTexts(*sheet, parts->newsType, parts->backEnd);
            parts->listOf(static_cast<ListIndex>(list)).measureColumns();
            parts->listOf(static_cast<ListIndex>(list)).forgetWrittenCells();
        }
    }
    vSetComponentPos();
}

void TRVNewsCtrlView::resizeEvent(QResizeEvent* event) {
    TRVQuoteBaseView::resizeEvent(event);
    if (parts->initialised)
        vSetComponentPos();
}
