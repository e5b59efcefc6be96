// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/sheet_delegate.h"

#include <QAbstractItemView>
#include <QPainter>

namespace wirepane {

SheetDelegate::SheetDelegate(QAbstractItemView* sheet) : QStyledItemDelegate(sheet), view(sheet) {}

bool SheetDelegate::isMarkedCurrent(const QModelIndex& index) const {
    return colours.marking && view->currentIndex().row() == index.row();
}

void SheetDelegate::paintBackground(QPainter& painter, const QRect& cell, const QModelIndex& index,
                                    bool selected) const {
    const bool current = isMarkedCurrent(index);
    const bool odd = (index.row() % 2 == 1) != firstRowOdd;
    painter.fillRect(cell, selected || current ? colours.markBackground(view->hasFocus(), view->palette())
                                               : colours.rowBackground(odd, view->palette()));
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

void SheetDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    paintBackground(*painter, option.rect, index, option.state.testFlag(QStyle::State_Selected));
    const QString text = index.data(Qt::DisplayRole).toString();
    if (text.isEmpty())
        return;
    const QVariant own = index.data(Qt::ForegroundRole);
    const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
    const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    painter->setFont(option.font);
    painter->setPen(own.isValid() ? own.value<QBrush>().color() : colours.textColour(view->palette()));
    painter->drawText(room, static_cast<int>(alignment) | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
}

QSize SheetDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QString text = index.data(Qt::DisplayRole).toString();
    return {option.fontMetrics.horizontalAdvance(text) + 2 * margin + 1, option.fontMetrics.height()};
}

}  // namespace wirepane
