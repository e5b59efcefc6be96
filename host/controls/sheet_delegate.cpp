// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/sheet_delegate.h"

#include "host/controls/hidden_rows.h"
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_cells.h"
#include "host/controls/uncut_width.h"

#include <QAbstractItemView>
#include <QPainter>

namespace wirepane {

SheetDelegate::SheetDelegate(QAbstractItemView* sheet) : QStyledItemDelegate(sheet), view(sheet) {}

bool SheetDelegate::isMarkedCurrent(const QModelIndex& index) const {
    return colours.marking && view->currentIndex().row() == index.row();
}

bool SheetDelegate::isOdd(int row) const {
    const int place = hidden != nullptr ? hidden->placeOf(row) : row;
    return (place % 2 == 1) != firstRowOdd;
}

void SheetDelegate::paintBackground(QPainter& painter, const QRect& cell, const QModelIndex& index,
                                    bool selected) const {
    const bool current = isMarkedCurrent(index);
    painter.fillRect(cell, selected || current ? colours.markBackground(view->hasFocus(), view->palette())
                                               : colours.rowBackground(isOdd(index.row()), view->palette()));
    const QVariant highlight = index.data(Qt::BackgroundRole);
    if (highlight.isValid())
        painter.fillRect(cell, highlight.value<QBrush>());
    if (!current || !view->hasFocus())
        return;
    QColor line = colours.textColour(view->palette());
    line.setAlpha(70);
    painter.fillRect(QRect(cell.left(), cell.top(), cell.width(), 1), line);
    painter.fillRect(QRect(cell.left(), cell.bottom(), cell.width(), 1), line);
}

QRect SheetDelegate::textRoom(const QRect& cell, int column, const RowLook& look) {
    if (look.gutter == 0)
        return cell.adjusted(margin, 0, -margin, 0);
    return column == 0 ? cell.adjusted(look.gutter, 0, 0, 0) : cell;
}

QColor SheetDelegate::finishedGround(const QModelIndex& index, bool selected, const SheetCells& cells,
                                     int row) const {
    const QPalette& palette = view->palette();
    if (selected || isMarkedCurrent(index))
        return colours.markBackground(view->hasFocus(), palette);
    const QColor plain = colours.rowBackground(isOdd(index.row()), palette);
    if (const int arrival = cells.arrival(row); arrival > 0)
        return colours.arrivedBackground(plain, arrival, palette);
    return index.row() == hoveredRow ? colours.hoverBackground(palette) : plain;
}

void SheetDelegate::paintFinished(QPainter& painter, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
    constexpr int barWidth = 3;
    const auto* builder = static_cast<const CSheetBuilder*>(index.model());
    const SheetCells* cells = builder->cells();
    const int row = builder->queuedRow(index.row());
    if (cells == nullptr || row < 0)
        return;
    const QRect& cell = option.rect;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter.fillRect(cell, finishedGround(index, selected, *cells, row));
    if (const QColor over = cells->highlight(row, index.column()); over.isValid())
        painter.fillRect(cell, over);
    if (index.column() == 0 && view->hasFocus() && (selected || isMarkedCurrent(index)))
        painter.fillRect(QRect(cell.left(), cell.top(), barWidth, cell.height()),
                         colours.accentColour(view->palette()));
    constexpr int roomForDot = 14;
    if (index.column() == 0 && look.gutter >= roomForDot && cells->tone(row) == SheetCells::Tone::Unread)
        rowPainter.paintDot(painter, cell, view->palette());
    rowPainter.setFont(option.font);
    rowPainter.paint(painter, *cells,
                     {row, index.column(), textRoom(cell, index.column(), look),
                      builder->alignment(index.column()), selected || isMarkedCurrent(index)},
                     view->palette());
}

void SheetDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    if (look.finished) {
        paintFinished(*painter, option, index);
        return;
    }
    paintBackground(*painter, option.rect, index, option.state.testFlag(QStyle::State_Selected));
    const QString text = index.data(Qt::DisplayRole).toString();
    if (text.isEmpty())
        return;
    const QVariant own = index.data(Qt::ForegroundRole);
    const QRect room = textRoom(option.rect, index.column(), look);
    const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    painter->setFont(option.font);
    painter->setPen(own.isValid() ? own.value<QBrush>().color() : colours.textColour(view->palette()));
    painter->drawText(room, static_cast<int>(alignment) | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
}

QSize SheetDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QString text = index.data(Qt::DisplayRole).toString();
    return {uncutWidth(option.fontMetrics, text) + 2 * margin, option.fontMetrics.height()};
}

}  // namespace wirepane
