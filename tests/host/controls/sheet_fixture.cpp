// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/host/controls/sheet_fixture.h"

#include "host/controls/sheet_builder.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QTest>

#include <algorithm>

namespace wirepane {

QString NumberedCells::text(int row, int column) const {
    ++asked;
    lowestAsked = std::min(lowestAsked, row);
    highestAsked = std::max(highestAsked, row);
    return QStringLiteral("%1/%2").arg(row).arg(column);
}

QColor NumberedCells::textColour(int /*row*/, int column) const {
    return column == 1 ? QColor(Qt::red) : QColor();
}

SheetFixture::SheetFixture() : sheet(new CSuperSheetWnd(new CSheetBuilder, &window)) {
    EXPECT_TRUE(sheet->bCreateSheet());
    sheet->setSmoothHorizontalScroll(true);
    sheet->setHeaderRowHeight(16);
    sheet->setHeightOfRows(16);
    for (const int width : {100, 50, 300})
        sheet->insertColumn(width);
    sheet->setCells(&cells);
}

void SheetFixture::showAt(const QSize& size) {
    window.resize(size);
    sheet->setGeometry(QRect(QPoint(0, 0), size));
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QCoreApplication::processEvents();
}

void SheetFixture::showWithRows(int rows) {
    showAt({600, (rows + 1) * line() + 2 * sheet->frameWidth()});
}

int SheetFixture::line() const {
    return sheet->verticalHeader()->defaultSectionSize();
}

std::vector<int> SheetFixture::selection() const {
    std::vector<int> rows{-7};
    sheet->vGetAllSelectionNdx(rows);
    return rows;
}

}  // namespace wirepane
