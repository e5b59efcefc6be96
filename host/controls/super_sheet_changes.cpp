// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// How the rows of a sheet come and go, and what stays in place meanwhile.
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_delegate.h"
#include "host/controls/super_sheet_wnd.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

using namespace wirepane;

void CSuperSheetWnd::addRows(int count) {
    if (builder != nullptr)
        builder->insertRows(rowCount(), count);
}

void CSuperSheetWnd::clearRows() {
    if (builder == nullptr)
        return;
    builder->setRowCount(0);
    // A header into which rows came at the top keeps room for several times as many, unless its state is set.
    verticalHeader()->restoreState(verticalHeader()->saveState());
}

int CSuperSheetWnd::rowCount() const {
    takeUpRows();
    return builder != nullptr ? builder->rowCount() : 0;
}

void CSuperSheetWnd::insertRow(int row) {
    if (builder != nullptr)
        builder->queueInsert(row);
}

void CSuperSheetWnd::deleteRow(int row) {
    if (builder != nullptr)
        builder->queueRemove(row);
}

void CSuperSheetWnd::moveRowToTop(int row) {
    if (builder != nullptr)
        builder->queueMoveToTop(row);
}

void CSuperSheetWnd::takeUpRows() const {
    if (builder != nullptr)
        builder->takeUpQueue();
}

int CSuperSheetWnd::firstVisibleRowToCome() const {
    const int first = verticalScrollBar()->value();
    return first == 0 || builder == nullptr ? first : std::max(0, first + builder->queuedShift(first));
}

// From above, in the place of the first row on screen when that goes; from below, when fewer rows come above
// the last row on screen than above the first. At its top the sheet shows what comes.
bool CSuperSheetWnd::mayShowOthers() const {
    const bool fromAbove = shownFirst > 0 && builder->queuedRow(shownFirst) != shownFirst + shownShift;
    const int last = std::min(shownFirst + rowsPerPage(), builder->rowCount() - 1);
    return fromAbove || builder->queuedShift(last) < (shownFirst > 0 ? shownShift : 0);
}

void CSuperSheetWnd::keepShownRows() {
    executeDelayedItemsLayout();
    if (shownFirst > 0)
        verticalScrollBar()->setValue(shownFirst + shownShift);
    takingUp = false;
    if (builder->rowCount() == 0)
        resetRowBkColor();
    else if (shownShift % 2 != 0)
        delegate->firstRowOdd = !delegate->firstRowOdd;
    viewport()->update();
    if (othersComeOnScreen)
        emit scrolledVertically();
}

void CSuperSheetWnd::invalidateRow(int row) {
    if (builder != nullptr)
        builder->rowWritten(row);
}

void CSuperSheetWnd::repaintRow(int row) {
    const int height = verticalHeader()->defaultSectionSize();
    const int place = row - verticalScrollBar()->value();
    if (place >= 0 && place <= viewport()->height() / height)
        viewport()->update(0, place * height, viewport()->width(), height);
}

void CSuperSheetWnd::resetRowBkColor() {
    if (!delegate->firstRowOdd)
        return;
    delegate->firstRowOdd = false;
    viewport()->update();
}

void CSuperSheetWnd::keepRowColours(int firstRow, int count) {
    if (builder->rowCount() == 0 || (firstRow == 0 && builder->rowCount() == count))
        resetRowBkColor();
    else if (firstRow == 0 && count % 2 == 1)
        delegate->firstRowOdd = !delegate->firstRowOdd;
}
