// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QColor>
#include <QList>
#include <QString>

namespace wirepane {

// The words at the head of a text that finished rows draw as a chip. What stands beside the label in them,
// such as a colon or brackets, is left out of the drawing.
struct SheetChip {
    int length = 0;  // of the words; 0: there is no chip
    int labelFrom = 0;
    int labelLength = 0;
    bool urgent = false;  // filled, not outlined
};

// Characters of a cell's text that stand on a ground of their own.
struct SheetHit {
    qsizetype start = 0;
    qsizetype length = 0;
    int tint = 0;  // of the grounds that there are, round and round
};

// Where a sheet takes the texts of its cells from. The sheet asks for rows on screen only, each time it
// paints them, and keeps nothing: answers must be quick. Interface thread.
class WIREPANE_HOST_EXPORT SheetCells {
public:
    SheetCells() = default;
    SheetCells(const SheetCells&) = delete;
    SheetCells& operator=(const SheetCells&) = delete;
    virtual ~SheetCells() = default;

    // The text of a cell, drawn as it stands (never as markup); empty for a cell that was not written.
    virtual QString text(int row, int column) const = 0;
    // The text colour of a cell; an invalid colour means the sheet's own.
    virtual QColor textColour(int row, int column) const {
        Q_UNUSED(row);
        Q_UNUSED(column);
        return {};
    }
    // What is laid over the background of a cell; an invalid colour means nothing.
    virtual QColor highlight(int row, int column) const {
        Q_UNUSED(row);
        Q_UNUSED(column);
        return {};
    }

    // What finished rows have beside that. The head of a cell's text, asked for once for each text.
    virtual SheetChip chip(const QString& cellText, int column) const {
        Q_UNUSED(cellText);
        Q_UNUSED(column);
        return {};
    }
    // What of a cell's text is marked, from its beginning on; asked for once for each text, until the sheet
    // is told to forget them.
    virtual QList<SheetHit> hits(const QString& cellText, int column) const {
        Q_UNUSED(cellText);
        Q_UNUSED(column);
        return {};
    }
    // Small and grey at the right end of a cell that has room for it; empty: nothing.
    virtual QString tag(int row, int column) const {
        Q_UNUSED(row);
        Q_UNUSED(column);
        return {};
    }
    // As the tag, before it, in the colour of the text and in every cell that has any room for it.
    virtual QString mark(int row, int column) const {
        Q_UNUSED(row);
        Q_UNUSED(column);
        return {};
    }
    // What the reader has done with a row: unread ones have a dot and are heavier, what was read is paler, of
    // what was seen only the first column.
    enum class Tone { Plain, Unread, Seen, Read };
    virtual Tone tone(int row) const {
        Q_UNUSED(row);
        return Tone::Plain;
    }
    // What is read out of a cell.
    virtual QString spokenText(int row, int column) const { return text(row, column); }
    // The text is struck out.
    virtual bool isStruck(int row, int column) const {
        Q_UNUSED(row);
        Q_UNUSED(column);
        return false;
    }
    // How much of the colour of rows that have just come a row's ground has, of fullArrival; 0: none.
    static constexpr int fullArrival = 8;
    virtual int arrival(int row) const {
        Q_UNUSED(row);
        return 0;
    }
    // True: digits are drawn in one width.
    virtual bool holdsFigures(int column) const {
        Q_UNUSED(column);
        return false;
    }
    // Of a row, plain text; empty: it has none. Also rows that are not finished show it.
    virtual QString toolTip(int row) const {
        Q_UNUSED(row);
        return {};
    }
};

}  // namespace wirepane
