// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/row_look.h"

#include <QHeaderView>

namespace wirepane {

// The header row of a sheet: flat, one line of plain text per column, lined up with the cells below, with
// a mark on the column that the rows are sorted by while the sort indicator is shown. Colours
// that were not set (invalid) follow the palette's buttons. Over finished rows the separators are drawn while
// the pointer is over the row of headings.
class WIREPANE_HOST_EXPORT SheetHeader : public QHeaderView {
public:
    explicit SheetHeader(QWidget* parent);

    QColor background;
    QColor text;
    QColor line;  // below finished headings
    RowLook look;

protected:
    bool event(QEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    // Draws which way the rows are sorted at the right end of `room`; result: where that leaves off.
    int paintSortMark(QPainter& painter, const QRect& room) const;
    QColor shownBackground() const;
    QColor shownText() const;
    QColor shownLine() const;
};

}  // namespace wirepane
