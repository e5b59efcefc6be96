// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The keys, the mouse and the menu of the news view.
#include "headline_list/headline_list.h"
#include "news_view/trv_news_ctrl_view.h"
#include "news_view/view_parts.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QWheelEvent>

using namespace wirepane;

bool TRVNewsCtrlView::PreTranslateMessage(const QKeyEvent& event) {
    return parts->input.takeBefore(event);
}

bool TRVNewsCtrlView::OnKeyDown(const QKeyEvent& event) {
    return parts->input.takePress(event);
}

bool TRVNewsCtrlView::OnKeyUp(const QKeyEvent& event) {
    return parts->input.takeRelease(event);
}

void TRVNewsCtrlView::OnHScroll(Qt::Key key) {
    parts->input.scrollSideways(key);
}

void TRVNewsCtrlView::OnMouseWheel(const QWheelEvent& event) {
    parts->input.takeWheel(event);
}

bool TRVNewsCtrlView::OnContextMenu(const QPoint& screen) {
    return parts->contextMenu.openAt(screen);
}

// Answers whether the event is done with: what is not is the base view's, as clicks on its title are.
bool TRVNewsCtrlView::OnLButtonDblClk(unsigned flags, const QPoint&) {
    if ((flags & Parts::forwardedByGrid) == 0)
        return false;
    parts->story.takeDoubleClick();
    return true;
}

bool TRVNewsCtrlView::OnLButtonUp(unsigned flags, const QPoint&) {
    return (flags & Parts::forwardedByGrid) != 0 && parts->story.takeClick();
}

// A row that scrolls into view is written at once; the deferred refresh comes after the last step.
void TRVNewsCtrlView::OnVScroll() {
    vRealUpdateView();
    vUpdateView();
    parts->categories.showColumn();
}

void TRVNewsCtrlView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !OnLButtonDblClk(Parts::leftButton, event->pos()))
        event->ignore();
}

void TRVNewsCtrlView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !OnLButtonUp(Parts::leftButton, event->pos()))
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
        parts->contextMenu.openByKey();
    else if (!OnContextMenu(event->globalPos()))
        TRVQuoteBaseView::contextMenuEvent(event);
}

// The view's keyboard is its grid's.
void TRVNewsCtrlView::focusInEvent(QFocusEvent* event) {
    TRVQuoteBaseView::focusInEvent(event);
    if (CSuperSheetWnd* sheet = pGetCurrSheetView())
        sheet->setFocus(event->reason());
}
