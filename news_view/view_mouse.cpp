// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The mouse on the news view, and the buttons that page through the stories.
#include "host/controls/super_sheet_wnd.h"
#include "news_view/control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "story/news_story_view.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>

namespace {
constexpr unsigned leftButtonFlag = 0x01;
constexpr unsigned forwardedByGrid = 0x80;
}  // namespace

void TRVNewsCtrlView::vConnectMouse(CSuperSheetWnd& sheet) {
    connect(&sheet, &CSuperSheetWnd::LButtonUp, this,
            [this](const QPoint& point) { OnLButtonUp(forwardedByGrid, point); });
    connect(&sheet, &CSuperSheetWnd::LButtonDblClk, this,
            [this](const QPoint& point) { OnLButtonDblClk(forwardedByGrid, point); });
    connect(&sheet, &CSuperSheetWnd::ScrolledVertically, this, &TRVNewsCtrlView::OnVScroll);
}

// Answers whether the event is done with: what is not is the base view's, as clicks on its title are.
bool TRVNewsCtrlView::OnLButtonDblClk(unsigned flags, const QPoint&) {
    if ((flags & forwardedByGrid) == 0)
        return false;
    if (stage.pGetDialog() != nullptr && !bPaneShowsStories())
        OnShowStory();
    return true;
}

bool TRVNewsCtrlView::OnLButtonUp(unsigned flags, const QPoint&) {
    NewsStoryView* pane = stage.pGetPane();
    if ((flags & forwardedByGrid) == 0 || pane == nullptr)
        return false;
    if (bPaneShowsStories()) {
        OnShowStory();
        return true;
    }
    const CSuperSheetWnd* sheet = pGetCurrSheetView();
    const int row = sheet != nullptr ? sheet->cptGetFocusNdx().y() : -1;
    if (row < 0)
        return true;
    shownStoryRow = row;
    if (iGetHeadlineTableSize(currentMode) > 0) {
        pane->SetHeadLinePos(row);
        bChangeNewsPos(currentMode, pane->GetHeadLinePos());
    }
    return true;
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

void TRVNewsCtrlView::OnMouseWheel(const QWheelEvent& event) {
    CSuperSheetWnd* sheet = pGetCurrSheetView();
    // What a grid or the story at its end lets pass is not for the grid again.
    const QWidget* under = childAt(event.position().toPoint());
    const auto holdsPoint = [under](const QWidget* part) {
        return under != nullptr && part != nullptr && part->isAncestorOf(under);
    };
    if (handingWheelOn || sheet == nullptr || holdsPoint(sheet) || holdsPoint(stage.pGetPane()))
        return;
    const QScopedValueRollback handingOn(handingWheelOn, true);
    if (event.angleDelta().x() != 0 && event.angleDelta().y() == 0) {
        OnHScroll(event.angleDelta().x() > 0 ? Qt::Key_Left : Qt::Key_Right);
        return;
    }
    QWidget* viewport = sheet->viewport();
    const QPoint centre = viewport->rect().center();
    QWheelEvent turned(centre, viewport->mapToGlobal(centre), event.pixelDelta(), event.angleDelta(),
                       event.buttons(), event.modifiers(), event.phase(), event.inverted());
    QCoreApplication::sendEvent(viewport, &turned);
}

void TRVNewsCtrlView::OnHScroll(Qt::Key key) {
    CSuperSheetWnd* sheet = pGetCurrSheetView();
    if (sheet == nullptr || !sheet->bHasFocus())
        return;
    const QScopedValueRollback handingOn(handingKeyOn, true);
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(sheet, &press);
}

// A row that scrolls into view is written at once; the deferred refresh comes after the last step.
void TRVNewsCtrlView::OnVScroll() {
    vRealUpdateView();
    vUpdateView();
    ChangeCurrViewCategoryState(settings.showCategory);
}

void TRVNewsCtrlView::OnBtnPageDown() {
    vPageStories(1);
}

void TRVNewsCtrlView::OnBtnPageUp() {
    vPageStories(-1);
}

void TRVNewsCtrlView::vPageStories(int step) {
    NewsStoryView* pane = stage.pGetPane();
    const int size = iGetHeadlineTableSize(currentMode);
    if (pane == nullptr || size <= 0)
        return;
    const int wanted = pane->GetHeadLinePos() + step;
    pane->SetHeadLinePos(wanted < 0 ? size - 1 : wanted >= size ? 0 : wanted);
    pane->vShowData();
    bChangeNewsPos(currentMode, pane->GetHeadLinePos());
    ChangeNewsSymbolList();
}
