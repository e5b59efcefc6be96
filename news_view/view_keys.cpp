// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The keyboard of the news view: which keys go to the grid, which to the view, and when they act.
#include "host/controls/super_sheet_wnd.h"
#include "news_view/trv_news_ctrl_view.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QScopedValueRollback>

KeySituation TRVNewsCtrlView::vKeySituation() const {
    const CSuperSheetWnd* sheet = pGetCurrSheetView();
    const QWidget* holder = focusWidget();
    KeyboardFocus focus = KeyboardFocus::Control;
    if (sheet != nullptr && sheet->bHasFocus())
        focus = KeyboardFocus::Grid;
    else if (holder == nullptr || holder == this)
        focus = KeyboardFocus::View;
    return {currentMode, newsType, bPaneShowsStories(), focus};
}

bool TRVNewsCtrlView::PreTranslateMessage(QKeyEvent& event) {
    if (handingKeyOn || bQuotesHaveFocus())
        return false;
    if (event.type() == QEvent::KeyRelease)
        return OnKeyUp(event);
    const KeyRoute route = RouteKey(event.key(), event.modifiers(), vKeySituation());
    if (!route.consumed)
        return false;
    if (route.atRelease) {
        if (keysAtRelease.bPress(event.key(), event.isAutoRepeat()))
            vCarryOut(route, event);
        return true;
    }
    // Enter takes its way through the grid to the view.
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (enter)
        return false;
    vCarryOut(route, event);
    return true;
}

void TRVNewsCtrlView::vCarryOut(const KeyRoute& route, const QKeyEvent& event) {
    QWidget* receiver = this;
    if (!route.toView)
        receiver = route.toGrid ? pGetCurrSheetView() : nullptr;
    if (receiver != nullptr) {
        const QScopedValueRollback handingOn(handingKeyOn, true);
        QKeyEvent press(QEvent::KeyPress, event.key(), event.modifiers(), event.text());
        QCoreApplication::sendEvent(receiver, &press);
    }
    if (route.showStory)
        OnShowStory();
}

bool TRVNewsCtrlView::OnKeyUp(const QKeyEvent& event) {
    if (!keysAtRelease.bRelease(event.key()))
        return false;
    const Qt::KeyboardModifiers shift = event.modifiers() & Qt::ShiftModifier;
    vCarryOut(RouteKey(event.key(), shift, vKeySituation()), event);
    return true;
}

void TRVNewsCtrlView::keyPressEvent(QKeyEvent* event) {
    if (!OnKeyDown(*event))
        TRVQuoteBaseView::keyPressEvent(event);
}

bool TRVNewsCtrlView::OnKeyDown(const QKeyEvent& event) {
    // A control that lets a key pass does not mean the list.
    if (vKeySituation().focus == KeyboardFocus::Control)
        return false;
    const bool shifted = event.modifiers().testFlag(Qt::ShiftModifier);
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        OnShowStory();
    else if (event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && shifted))
        vContextMenuByKey();
    else if (event.matches(QKeySequence::Copy))
        vCopyRows();
    else
        return false;
    return true;
}

void TRVNewsCtrlView::vCopyRows() {
    const HeadlineList* list = CurrentList();
    if (list == nullptr || list->pGetGrid() == nullptr)
        return;
    std::vector<int> rows;
    list->pGetGrid()->vGetAllSelectionNdx(rows);
    if (!rows.empty())
        QApplication::clipboard()->setText(list->TextOfRows(rows));
}
