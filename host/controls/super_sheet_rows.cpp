// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The rows of a sheet: which of them are on screen, selected and current, and in which colours.
#include "host/controls/hidden_rows.h"
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_delegate.h"
#include "host/controls/sheet_header.h"
#include "host/controls/super_sheet_wnd.h"

#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

using namespace wirepane;

void CSuperSheetWnd::resetScroll() {
    takeUpRows();
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
}

void CSuperSheetWnd::vAutoVerScrolling(int row) {
    if (row < 0 || row >= rowCount())
        return;
    executeDelayedItemsLayout();
    const int first = verticalScrollBar()->value();
    const int page = std::max(1, rowsPerPage());
    const int place = hidden->placeOf(row);
    if (place < first)
        verticalScrollBar()->setValue(place);
    else if (place >= first + page)
        verticalScrollBar()->setValue(place - page + 1);
}

void CSuperSheetWnd::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (hint == EnsureVisible)
        vAutoVerScrolling(index.row());
    else
        QTableView::scrollTo(index, hint);
}

void CSuperSheetWnd::setFirstVisibleRow(int row) {
    takeUpRows();
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(hidden->placeOf(row));
}

int CSuperSheetWnd::firstVisibleRow() const {
    takeUpRows();
    return std::clamp(rowAtPlace(verticalScrollBar()->value()), 0, std::max(0, rowCount() - 1));
}

int CSuperSheetWnd::rowsPerPage() const {
    return viewport()->height() / verticalHeader()->defaultSectionSize();
}

int CSuperSheetWnd::iCalcRowNdx(const QPoint& client) const {
    takeUpRows();
    const QPoint point = viewport()->mapFrom(this, client);
    if (!viewport()->rect().contains(point))
        return -1;
    return rowAtHeight(point.y());
}

bool CSuperSheetWnd::bHasFocus() const {
    return hasFocus();
}

QPoint CSuperSheetWnd::cptGetFocusNdx() const {
    takeUpRows();
    const QModelIndex current = currentIndex();
    return {current.column(), current.row()};
}

void CSuperSheetWnd::vGetAllSelectionNdx(std::vector<int>& rows) const {
    rows.clear();
    if (selectionModel() == nullptr)
        return;
    takeUpRows();
    std::vector<std::pair<int, int>> ranges;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        ranges.emplace_back(range.top(), range.bottom());
    std::sort(ranges.begin(), ranges.end());
    for (const auto& [top, bottom] : ranges) {
        for (int row = rows.empty() ? top : std::max(top, rows.back() + 1); row <= bottom; ++row)
            rows.push_back(row);
    }
}

void CSuperSheetWnd::setActiveSelection(int row, int column) {
    const auto first = std::find_if(widths.begin(), widths.end(), [](int width) { return width > 0; });
    const int shown = column >= 0 ? column : static_cast<int>(first - widths.begin());
    if (row < 0 || row >= rowCount() || !hasColumn(shown) || selectionModel() == nullptr)
        return;
    const bool scrolls = hasAutoScroll();
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(builder->index(row, shown),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    setAutoScroll(scrolls);
}

void CSuperSheetWnd::selectRows(std::vector<int> rows, int current) {
    deselectRows();
    const int last = rowCount() - 1;
    const auto shown = std::find_if(widths.begin(), widths.end(), [](int width) { return width > 0; });
    const auto column = static_cast<int>(shown - widths.begin());
    if (selectionModel() == nullptr || !hasColumn(column))
        return;
    std::sort(rows.begin(), rows.end());
    QItemSelection selection;
    for (std::size_t i = 0; i < rows.size();) {
        const int first = rows[i];
        int end = first;
        for (; i < rows.size() && rows[i] <= end + 1; ++i)
            end = rows[i];
        if (first >= 0 && end <= last)
            selection.select(builder->index(first, 0), builder->index(end, builder->columnCount() - 1));
    }
    const bool scrolls = hasAutoScroll();
    setAutoScroll(false);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (current >= 0 && current <= last)
        selectionModel()->setCurrentIndex(builder->index(current, column), QItemSelectionModel::NoUpdate);
    setAutoScroll(scrolls);
}

void CSuperSheetWnd::deselectRows() {
    takeUpRows();
    if (selectionModel() != nullptr)
        selectionModel()->clear();
}

void CSuperSheetWnd::keyboardSearch(const QString& /*search*/) {
    // A typed letter would be looked for in every row of the table.
}

QModelIndex CSuperSheetWnd::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    takeUpRows();
    const QModelIndex current = currentIndex();
    if (rowCount() == 0 || !current.isValid())
        return QTableView::moveCursor(action, modifiers);
    // A row is selected as a whole: left and right scroll, home and end go to the first and last row.
    switch (action) {
        case MoveLeft:
            horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
            return current;
        case MoveRight:
            horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepAdd);
            return current;
        case MoveHome:
            return current.siblingAtRow(rowAtPlace(0));
        case MoveEnd:
            return builder->index(rowAtPlace(rowCount() - hidden->count() - 1), current.column());
        default:
            return QTableView::moveCursor(action, modifiers);
    }
}

void CSuperSheetWnd::keyPressEvent(QKeyEvent* event) {
    // The item view would copy the current cell also where there is none.
    if (event->matches(QKeySequence::Copy) && !currentIndex().isValid())
        event->ignore();
    else
        QTableView::keyPressEvent(event);
}

void CSuperSheetWnd::focusInEvent(QFocusEvent* event) {
    if (currentIndex().isValid()) {
        QTableView::focusInEvent(event);
        return;
    }
    // The item view would make row 0 current, though the user chose none.
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

namespace {
bool isPlainClick(const QMouseEvent& event) {
    return event.button() == Qt::LeftButton &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier));
}
}  // namespace

void CSuperSheetWnd::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    if (isPlainClick(*event))
        emit leftButtonUp(viewport()->mapTo(this, event->pos()));
}

void CSuperSheetWnd::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    if (isPlainClick(*event))
        emit lButtonDblClk(viewport()->mapTo(this, event->pos()));
}

void CSuperSheetWnd::vSetHeaderRowBkColor(const QColor& colour) {
    header->background = colour;
    header->viewport()->update();
}

void CSuperSheetWnd::vSetHeaderRowFgColor(const QColor& colour) {
    header->text = colour;
    header->viewport()->update();
}

void CSuperSheetWnd::vSetFrameColor(const QColor& colour) {
    frameColour = colour;
    update();
}

void CSuperSheetWnd::vSetBkColor(const QColor& first, const QColor& second) {
    delegate->colours.evenRow = first;
    delegate->colours.oddRow = second;
    QPalette below;
    if (first.isValid())
        below.setColor(QPalette::Base, first);
    viewport()->setPalette(below);
    viewport()->update();
}

void CSuperSheetWnd::vSetFocusColor(bool marking, const QColor& focused, const QColor& unfocused) {
    delegate->colours.marking = marking;
    delegate->colours.focused = focused;
    delegate->colours.unfocused = unfocused;
    viewport()->update();
}

void CSuperSheetWnd::vSetFgColor(const QColor& colour) {
    delegate->colours.text = colour;
    viewport()->update();
}

void CSuperSheetWnd::vSetFont(const QFont& font) {
    setFont(font);
    header->setFont(headingFont());
}

void CSuperSheetWnd::setFinishColours(const SheetColours& colours) {
    SheetColours& own = delegate->colours;
    own.hover = colours.hover;
    own.arrived = colours.arrived;
    own.accent = colours.accent;
    own.weak = colours.weak;
    own.border = colours.border;
    own.line = colours.line;
    own.urgent = colours.urgent;
    own.onUrgent = colours.onUrgent;
    own.hits = colours.hits;
    header->line = colours.line;
    delegate->forgetPictures();
    header->viewport()->update();
    viewport()->update();
}
