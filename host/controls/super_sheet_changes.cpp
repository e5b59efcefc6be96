// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// How the rows of a sheet come and go, and what stays in place meanwhile.
#include "host/controls/sheet_delegate.h"
#include "host/controls/super_sheet_wnd.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

void CSuperSheetWnd::vAddRows(int count) {
    if (builder != nullptr)
        builder->vInsertRows(iGetRowCount(), count);
}

void CSuperSheetWnd::vClearRows() {
    if (builder == nullptr)
        return;
    builder->vSetRowCount(0);
    // A header into which rows came at the top keeps room for several times as many, unless its state is set.
    verticalHeader()->restoreState(verticalHeader()->saveState());
}

int CSuperSheetWnd::iGetRowCount() const {
    takeUpRows();
    return builder != nullptr ? builder->iGetRowCount() : 0;
}

void CSuperSheetWnd::vInsertRow(int row) {
    if (builder != nullptr)
        builder->vQueueInsert(row);
}

void CSuperSheetWnd::vDeleteRow(int row) {
    if (builder != nullptr)
        builder->vQueueRemove(row);
}

void CSuperSheetWnd::vMoveRowToTop(int row) {
    if (builder != nullptr)
        builder->vQueueMoveToTop(row);
}

void CSuperSheetWnd::takeUpRows() const {
    if (builder != nullptr)
        builder->vTakeUpQueue();
}

int CSuperSheetWnd::iGetFirstVisibleRowToCome() const {
    const int first = verticalScrollBar()->value();
    return first == 0 || builder == nullptr ? first : std::max(0, first + builder->iGetQueuedShift(first));
}

// From above, in the place of the first row on screen when that goes; from below, when fewer rows come above
// the last row on screen than above the first. At its top the sheet shows what comes.
bool CSuperSheetWnd::bOthersComeOnScreen() const {
    const bool fromAbove = shownFirst > 0 && builder->iGetQueuedRow(shownFirst) != shownFirst + shownShift;
    const int last = std::min(shownFirst + iGetRowsPerPage(), builder->iGetRowCount() - 1);
    return fromAbove || builder->iGetQueuedShift(last) < (shownFirst > 0 ? shownShift : 0);
}

void CSuperSheetWnd::keepShownRows() {
    executeDelayedItemsLayout();
    if (shownFirst > 0)
        verticalScrollBar()->setValue(shownFirst + shownShift);
    takingUp = false;
    if (builder->iGetRowCount() == 0)
        vResetRowBkColor();
    else if (shownShift % 2 != 0)
        delegate->firstRowOdd = !delegate->firstRowOdd;
    viewport()->update();
    if (othersComeOnScreen)
        emit ScrolledVertically();
}

bool CSuperSheetWnd::viewportEvent(QEvent* event) {
    takeUpRows();
    return QTableView::viewportEvent(event);
}

void CSuperSheetWnd::vInvalidateRow(int row) {
    if (builder != nullptr)
        builder->vRowWritten(row);
}

void CSuperSheetWnd::vResetRowBkColor() {
    if (!delegate->firstRowOdd)
        return;
    delegate->firstRowOdd = false;
    viewport()->update();
}

void CSuperSheetWnd::keepRowColours(int firstRow, int count) {
    if (builder->iGetRowCount() == 0 || (firstRow == 0 && builder->iGetRowCount() == count))
        vResetRowBkColor();
    else if (firstRow == 0 && count % 2 == 1)
        delegate->firstRowOdd = !delegate->firstRowOdd;
}
