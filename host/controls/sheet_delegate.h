// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/sheet_colours.h"

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace wirepane {

// Draws the cells of a sheet: one line of plain text on the row's colour, cut with dots at the right. Marked
// rows (selected or current) keep the colours of their texts.
class WIREPANE_HOST_EXPORT SheetDelegate : public QStyledItemDelegate {
public:
    static constexpr int margin = 4;  // between a cell's edge and its text, in pixels

    explicit SheetDelegate(QAbstractItemView* sheet);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    SheetColours colours;
    bool firstRowOdd = false;  // row 0 has the colour of odd rows

private:
    bool isMarkedCurrent(const QModelIndex& index) const;
    void paintBackground(QPainter& painter, const QRect& cell, const QModelIndex& index, bool selected) const;

    const QAbstractItemView* view;
};

}  // namespace wirepane
