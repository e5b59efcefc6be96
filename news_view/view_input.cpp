// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The keys, the mouse and the menu of the news view: what its parts for them are given, and the events that
// they take.
#include "host/controls/super_sheet_wnd.h"
#include "news_view/category_mode.h"
#include "news_view/trv_news_ctrl_view.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {
constexpr unsigned leftButtonFlag = 0x01;
constexpr unsigned forwardedByGrid = 0x80;
}  // namespace

ListInput::Surroundings TRVNewsCtrlView::inputSurroundings() {
    return {*this, stage, [this] { return newsType; }, [this] { return story.paneShowsStories(); },
            [this] { contextMenu.openByKey(); }};
}

Shortcuts::Surroundings TRVNewsCtrlView::shortcutSurroundings() {
    return {*this, controls, stage, [this](int command) { OnCommand(command); },
            [this] { OnSelchangeTabMode(); }};
}

ContextMenu::Surroundings TRVNewsCtrlView::contextMenuSurroundings() {
    return {*this, [this] { return iGetTitleHeight(); },
            [this](bool onRow) {
                return contextMenuEntries({shownList(), onRow, settings.showCategory, story.hasStoryWindow()},
                                          backEnd, output.waitingCommands(), board.notices());
            }};
}

void TRVNewsCtrlView::vConnectMouse(CSuperSheetWnd& sheet, ListIndex list) {
    connect(&sheet, &CSuperSheetWnd::LButtonUp, this,
            [this](const QPoint& point) { OnLButtonUp(forwardedByGrid, point); });
    connect(&sheet, &CSuperSheetWnd::LButtonDblClk, this,
            [this](const QPoint& point) { OnLButtonDblClk(forwardedByGrid, point); });
    connect(&sheet, &CSuperSheetWnd::ScrolledVertically, this, &TRVNewsCtrlView::OnVScroll);
    connect(sheet.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this, &sheet, list] { story.follow(sheet, list); });
}

// Answers whether the event is done with: what is not is the base view's, as clicks on its title are.
bool TRVNewsCtrlView::OnLButtonDblClk(unsigned flags, const QPoint&) {
    if ((flags & forwardedByGrid) == 0)
        return false;
    story.takeDoubleClick();
    return true;
}

bool TRVNewsCtrlView::OnLButtonUp(unsigned flags, const QPoint&) {
    return (flags & forwardedByGrid) != 0 && story.takeClick();
}

// A row that scrolls into view is written at once; the deferred refresh comes after the last step.
void TRVNewsCtrlView::OnVScroll() {
    vRealUpdateView();
    vUpdateView();
    categories->showColumn();
}

void TRVNewsCtrlView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !OnLButtonDblClk(leftButtonFlag, event->pos()))
        event->ignore();
}

void TRVNewsCtrlView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !OnLButtonUp(leftButtonFlag, event->pos()))
        TRVQuoteBaseView::mouseReleaseEvent(event);
}

void TRVNewsCtrlView::wheelEvent(QWheelEvent* event) {
    OnMouseWheel(*event);
    event->accept();
}

void TRVNewsCtrlView::keyPressEvent(QKeyEvent* event) {
    if (!OnKeyDown(*event))
        TRVQuoteBaseView::keyPressEvent(event);
}

void TRVNewsCtrlView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        contextMenu.openByKey();
    else if (!OnContextMenu(event->globalPos()))
        TRVQuoteBaseView::contextMenuEvent(event);
}

// The view's keyboard is its grid's.
void TRVNewsCtrlView::focusInEvent(QFocusEvent* event) {
    TRVQuoteBaseView::focusInEvent(event);
    if (CSuperSheetWnd* sheet = pGetCurrSheetView())
        sheet->setFocus(event->reason());
}
