// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QColor>
#include <QString>

namespace wirepane {

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
};

}  // namespace wirepane
