// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/sheet_cells.h"
#include "host/controls/super_sheet_wnd.h"

#include <QWidget>

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace wirepane {

// Cells that say where they are; counts how often they are asked.
class NumberedCells : public SheetCells {
public:
    QString text(int row, int column) const override;
    QColor textColour(int row, int column) const override;

    mutable int asked = 0;
    mutable int lowestAsked = 1 << 30;
    mutable int highestAsked = -1;
};

// A window with a sheet of the headline columns (time 100, category 50, title 300), heights 16 or what the
// font needs.
class SheetFixture : public testing::Test {
protected:
    SheetFixture();

    // Makes the sheet so high that exactly `rows` rows fit under its header, and shows it.
    void showWithRows(int rows);
    void showAt(const QSize& size);
    // The height of its header and of each row.
    int line() const;
    std::vector<int> selection() const;

    QWidget window;
    NumberedCells cells;
    CSuperSheetWnd* sheet;
};

}  // namespace wirepane
