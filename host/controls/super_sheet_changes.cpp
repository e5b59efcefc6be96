// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// How the rows of a sheet come and go, and what stays in place meanwhile.
#include "host/controls/hidden_rows.h"
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_delegate.h"
#include "host/controls/super_sheet_wnd.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

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
    if (showsWhatComes() || builder == nullptr)
        return 0;
    const int first = rowAtPlace(verticalScrollBar()->value());
    return std::max(0, first + builder->queuedShift(first));
}

// From above, in the place of the first row on screen when that goes; from below, when fewer rows come above
// the last row on screen than above the first. At its top the sheet shows what comes.
bool CSuperSheetWnd::mayShowOthers() const {
    const bool fromAbove = !showsNewest && builder->queuedRow(shownFirst) != shownFirst + shownShift;
    const int last =
        std::min(rowAtPlace(hidden->placeOf(shownFirst) + rowsPerPage()), builder->rowCount() - 1);
    return fromAbove || builder->queuedShift(last) < (showsNewest ? 0 : shownShift);
}

void CSuperSheetWnd::keepShownRows() {
    emit rowsTakenUp();
    executeDelayedItemsLayout();
    const int place = hidden->placeOf(shownFirst + shownShift);
    if (!showsNewest)
        verticalScrollBar()->setValue(place);
    takingUp = false;
    if (builder->rowCount() == 0)
        resetRowBkColor();
    else
        turnColoursFor(place - shownPlace);
    viewport()->update();
    if (othersComeOnScreen)
        emit scrolledVertically();
}

int CSuperSheetWnd::rowAtPlace(int place) const {
    return hidden->rowAt(place);
}

bool CSuperSheetWnd::showsWhatComes() const {
    return verticalScrollBar()->value() == 0 && !held;
}

bool CSuperSheetWnd::isInSight(int row) const {
    return !hidden->holds(row);
}

std::vector<int> CSuperSheetWnd::rowsOnScreen() const {
    takeUpRows();
    return rowsOnScreenToCome();
}

std::vector<int> CSuperSheetWnd::rowsOnScreenToCome() const {
    std::vector<int> rows;
    if (builder == nullptr)
        return rows;
    const int first = verticalScrollBar()->value();
    const int end = std::min(first + rowsPerPage() + 1, builder->rowCount() - hidden->count());
    for (int place = first; place < end; ++place) {
        if (const int row = builder->queuedRow(rowAtPlace(place)); row >= 0)
            rows.push_back(row);
    }
    return rows;
}

void CSuperSheetWnd::changeSight(std::vector<int> hide, std::vector<int> show) {
    if (builder == nullptr || model() == nullptr)
        return;
    takeUpRows();
    const bool wasAtTop = showsWhatComes();
    const int before = verticalScrollBar()->value();
    const int first = rowAtPlace(before);
    std::erase_if(hide, [this](int row) { return row < 0 || row >= builder->rowCount(); });
    const std::vector<int> hiding = hidden->hide(std::move(hide));
    const std::vector<int> showing = hidden->show(std::move(show));
    if (hiding.empty() && showing.empty())
        return;
    // The header would measure all rows after each.
    const QSignalBlocker quiet(verticalHeader());
    verticalHeader()->setUpdatesEnabled(false);
    for (const int row : hiding)
        setRowHidden(row, true);
    for (const int row : showing)
        setRowHidden(row, false);
    verticalHeader()->setUpdatesEnabled(true);
    othersComeOnScreen = true;
    updateGeometries();
    viewport()->update();
    if (takingUp)
        return;
    turnColoursFor(hidden->placeOf(first) - before);
    if (!wasAtTop)
        verticalScrollBar()->setValue(hidden->placeOf(first));
    emit scrolledVertically();
}

void CSuperSheetWnd::invalidateRow(int row) {
    if (builder != nullptr)
        builder->rowWritten(row);
}

void CSuperSheetWnd::repaintRow(int row) {
    const int height = verticalHeader()->defaultSectionSize();
    if (!isInSight(row))
        return;
    const int place = hidden->placeOf(row) - verticalScrollBar()->value();
    if (place >= 0 && place <= viewport()->height() / height)
        viewport()->update(0, place * height, viewport()->width(), height);
}

void CSuperSheetWnd::resetRowBkColor() {
    if (!delegate->firstRowOdd)
        return;
    delegate->firstRowOdd = false;
    viewport()->update();
}

// Of rows that came or went without being queued.
void CSuperSheetWnd::keepSight(int firstRow, int count, bool came) {
    if (hidden->empty())
        return;
    RowRuns runs(builder->rowCount() + (came ? -count : count));
    for (int i = 0; i < count; ++i) {
        if (came)
            runs.insert(firstRow);
        else
            runs.remove(firstRow);
    }
    hidden->follow(runs);
}

void CSuperSheetWnd::keepRowColours(int firstRow, int count) {
    if (builder->rowCount() == 0 || (firstRow == 0 && builder->rowCount() == count))
        resetRowBkColor();
    else if (firstRow == 0 && count % 2 == 1)
        delegate->firstRowOdd = !delegate->firstRowOdd;
}

// What stays on screen keeps its colour.
void CSuperSheetWnd::turnColoursFor(int placesMoved) {
    if (placesMoved % 2 != 0)
        delegate->firstRowOdd = !delegate->firstRowOdd;
}
