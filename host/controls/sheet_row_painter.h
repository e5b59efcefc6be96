// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/drawn_texts.h"
#include "host/controls/sheet_colours.h"

#include <QHash>
#include <QPen>
#include <QPixmap>

class QPainter;

namespace wirepane {
class SheetCells;

// Draws what stands in the cells of finished rows: the text, cut with dots at the right, its head as a chip,
// mark and tag at its end. What was drawn once is drawn again without being laid out again, and without
// taking memory.
class SheetRowPainter {
public:
    struct Cell {
        int row = 0;  // of the cells' source
        int column = 0;
        QRect room;  // for the text
        Qt::Alignment alignment;
        bool isSelected = false;
    };

    // The colours are referred to; after a change of theirs call forgetPictures.
    explicit SheetRowPainter(const SheetColours& rowColours) : colours(rowColours) {}

    // The font of what is painted next.
    void setFont(const QFont& font);
    void forgetPictures();
    // The dot of an unread row, in the gutter before its first cell.
    void paintDot(QPainter& painter, const QRect& cell, const QPalette& palette) const;
    // What it has laid out is not on show.
    void forgetTexts();
    void paint(QPainter& painter, const SheetCells& cells, const Cell& cell, const QPalette& palette);

private:
    // Result: where tag and mark leave off.
    int paintTags(QPainter& painter, const SheetCells& cells, const Cell& cell, const QPalette& palette);
    int paintTag(QPainter& painter, const QString& tag, const QRect& room, const QColor& colour);
    QColor textColour(const SheetCells& cells, const Cell& cell, const QPalette& palette) const;
    const QPixmap& chipPicture(const QPainter& painter, const QString& label, bool urgent,
                               const QPalette& palette);
    void setPen(QPainter& painter, const QColor& colour);
    void paintGrounds(QPainter& painter, const DrawnText& drawn, qreal x, const QRect& room) const;

    const SheetColours& colours;
    bool hasFont = false;
    DrawnTexts texts;
    DrawnTexts heavyTexts;  // of unread rows
    DrawnTexts tags;
    QFont chipFont;
    QHash<QString, QPixmap> chips;
    qreal chipRatio = 0;  // device pixels to a pixel in the chips' pictures
    QHash<QRgb, QPen> pens;
};

}  // namespace wirepane
