// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/row_look.h"
#include "host/controls/sheet_colours.h"
#include "host/controls/sheet_row_painter.h"

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace wirepane {
class HiddenRows;

// Draws the cells of a sheet: one line of plain text on the row's colour, cut with dots at the right. Marked
// rows (selected or current) keep the colours of their texts. Finished rows besides: the row under the
// pointer and one that has just come have grounds of their own, a bar stands at the selected row while the
// sheet has the keyboard.
class WIREPANE_HOST_EXPORT SheetDelegate : public QStyledItemDelegate {
public:
    static constexpr int margin = 4;  // between a cell's edge and its text, in pixels
    // The room that a cell's text has of a rectangle of its column, a heading or a cell.
    static QRect textRoom(const QRect& cell, int column, const RowLook& look);

    explicit SheetDelegate(QAbstractItemView* sheet);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    SheetColours colours;
    RowLook look;
    const HiddenRows* hidden = nullptr;  // colours take turns over the rows in sight; null: all are
    bool firstRowOdd = false;            // the first of them has the colour of odd ones
    int hoveredRow = -1;                 // under the pointer
    // The colours have changed.
    void forgetPictures() { rowPainter.forgetPictures(); }
    void forgetTexts() { rowPainter.forgetTexts(); }

private:
    bool isOdd(int row) const;
    bool isMarkedCurrent(const QModelIndex& index) const;
    void paintBackground(QPainter& painter, const QRect& cell, const QModelIndex& index, bool selected) const;
    void paintFinished(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    QColor finishedGround(const QModelIndex& index, bool selected, const SheetCells& cells, int row) const;

    const QAbstractItemView* view;
    mutable SheetRowPainter rowPainter{colours};  // what it has laid out
};

}  // namespace wirepane
