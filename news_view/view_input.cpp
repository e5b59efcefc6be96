// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The keys, the mouse and the menu of the news view, and what commands of rows, days and notices do.
#include "headline_list/headline_list.h"
#include "host/controls/s_button.h"
#include "host/views/news_control_ids.h"
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

// --- Commands ---

bool TRVNewsCtrlView::Parts::takeRowCommand(int id) {
    if (id == ids::copyRows)
        input.copyRows();
    else if (id == ids::exportRows)
        rowsExport.ask(shownEntries());
    else if (id == ids::openInWindow)
        story.openWindow();
    else if (id == ids::turnFold)
        listOf(shownList()).turnFold(currentRow());
    else if (id == ids::turnPrices)
        lists.setOptions(settings.turnPrices());
    else if (id == ids::turnChanges)
        story.turnChanges();
    else
        return reading.carryOut(id) || arrivalPill.carryOut(id) || hold.carryOut(id);
    return true;
}

bool TRVNewsCtrlView::Parts::takeDayCommand(int id) {
    if (id != ids::earlierDay && id != ids::laterDay && id != ids::presentDay)
        return false;
    if (lists[ListIndex::All].grid() == nullptr)
        return true;
    showMode(ListIndex::All);
    if (const auto day = days.dayOfCommand(id))
        goToDay(*day);
    return true;
}

void TRVNewsCtrlView::Parts::goToDay(const QDate& day) {
    days.goTo(day);
    story.show();
}

bool TRVNewsCtrlView::Parts::takeNoticeCommand(int id) {
    // The button beside the notice asks first what is to become of what is complete.
    if (id == ids::askBeforeStop && output.ready() > 0) {
        const QWidget* stop = controls.find<SButton>(ids::stopWaiting);
        menu.popUp(output.waitingCommands(), stop->mapToGlobal(QPoint(0, stop->height())));
    } else if (id == ids::stopWaiting || id == ids::askBeforeStop) {
        output.stopWaiting();
    } else if (id == ids::putOutReady) {
        output.putOutReady();
    } else if (id == ids::endNarrowing) {
        searches.endNarrowing();
    } else if (id == ids::readUnfiltered) {
        readUnfiltered();
    } else {
        return false;
    }
    return true;
}

// The shown list without another list's filter.
void TRVNewsCtrlView::Parts::readUnfiltered() {
    if (!lists.hasOthersFilter(shownList()))
        return;
    sentAgain.readAgain(shownList());
    story.show();
}
