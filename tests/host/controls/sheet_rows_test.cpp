// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/sheet_builder.h"
#include "tests/host/controls/sheet_fixture.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace wirepane {

using SheetRows = SheetFixture;

TEST(SheetWithoutBuilder, AnswersThatThereIsNothing) {
    CSuperSheetWnd sheet(nullptr, nullptr);
    EXPECT_FALSE(sheet.bCreateSheet());
    sheet.insertColumn(100);
    sheet.setHeaderText(0, QStringLiteral("x"));
    sheet.addRows(3);
    sheet.clearRows();
    sheet.invalidateRow(0);
    sheet.setActiveSelection(0, -1);
    sheet.deselectRows();
    sheet.resetScroll();
    sheet.vAutoVerScrolling(0);
    std::vector<int> rows{1};
    sheet.vGetAllSelectionNdx(rows);
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(sheet.rowCount(), 0);
    EXPECT_EQ(sheet.firstVisibleRow(), 0);
    EXPECT_EQ(sheet.iCalcRowNdx({5, 25}), -1);
    EXPECT_EQ(sheet.cptGetFocusNdx(), QPoint(-1, -1));
}

TEST_F(SheetRows, CountsThePageAndTheFirstVisibleRow) {
    sheet->addRows(100);
    const struct {
        int height, page;
    } sizes[] = {{10 * line(), 10}, {11 * line() - 1, 10}, {11 * line(), 11}, {line() - 1, 0}, {line(), 1}};
    for (const auto& size : sizes) {
        showAt({600, line() + 2 * sheet->frameWidth() + size.height});
        EXPECT_EQ(sheet->rowsPerPage(), size.page) << size.height;
        EXPECT_EQ(sheet->firstVisibleRow(), 0) << size.height;
    }
    showWithRows(10);
    sheet->verticalScrollBar()->setValue(1000);
    EXPECT_EQ(sheet->firstVisibleRow(), 90);
    sheet->resetScroll();
    EXPECT_EQ(sheet->firstVisibleRow(), 0);
}

TEST_F(SheetRows, ScrollsNoFurtherThanNeeded) {
    showWithRows(10);
    sheet->addRows(100);  // nothing laid out yet: scrolling must not depend on the event loop
    QSignalSpy scrolled(sheet, &CSuperSheetWnd::scrolledVertically);
    const struct {
        int row, first;
        bool moves;
    } steps[] = {{9, 0, false},  {10, 1, true}, {99, 90, true},  {90, 90, false}, {95, 90, false},
                 {89, 89, true}, {0, 0, true},  {100, 0, false}, {-1, 0, false},  {50, 41, true}};
    for (const auto& step : steps) {
        scrolled.clear();
        sheet->vAutoVerScrolling(step.row);
        EXPECT_EQ(sheet->firstVisibleRow(), step.first) << step.row;
        EXPECT_EQ(scrolled.count(), step.moves ? 1 : 0) << step.row;
    }
}

TEST_F(SheetRows, FindsTheRowUnderAPoint) {
    showAt({600, 400});
    sheet->addRows(5);
    const int top = sheet->frameWidth() + line();
    const struct {
        QPoint point;
        int row;
    } places[] = {{{10, top - 1}, -1},
                  {{10, top}, 0},
                  {{10, top + line() - 1}, 0},
                  {{10, top + line()}, 1},
                  {{590, top + 5 * line() - 1}, 4},
                  {{10, top + 5 * line()}, -1},
                  {{-1, top}, -1},
                  {{10, -5}, -1},
                  {{10, 500}, -1}};
    for (const auto& place : places)
        EXPECT_EQ(sheet->iCalcRowNdx(place.point), place.row) << place.point.x() << ' ' << place.point.y();
    sheet->addRows(95);
    sheet->vAutoVerScrolling(99);
    const int first = sheet->firstVisibleRow();
    EXPECT_EQ(sheet->iCalcRowNdx({10, top + line()}), first + 1);
}

TEST_F(SheetRows, SelectionIsAscendingHoweverItWasMade) {
    showWithRows(20);
    sheet->addRows(20);
    const auto click = [this](int row, Qt::KeyboardModifiers keys) {
        QTest::mouseClick(sheet->viewport(), Qt::LeftButton, keys, {10, row * line() + line() / 2});
    };
    click(12, Qt::NoModifier);
    click(15, Qt::ShiftModifier);
    click(3, Qt::ControlModifier);
    click(13, Qt::ControlModifier);  // taken out again
    click(7, Qt::ControlModifier);
    EXPECT_EQ(selection(), (std::vector<int>{3, 7, 12, 14, 15}));
    EXPECT_EQ(sheet->cptGetFocusNdx(), QPoint(0, 7));

    sheet->setActiveSelection(4, -1);
    EXPECT_EQ(selection(), std::vector<int>{4});
    EXPECT_EQ(sheet->cptGetFocusNdx(), QPoint(0, 4));
    sheet->setActiveSelection(5, 2);
    EXPECT_EQ(selection(), std::vector<int>{5});
    EXPECT_EQ(sheet->cptGetFocusNdx(), QPoint(2, 5));
    for (const int outside : {-1, 20})
        sheet->setActiveSelection(outside, -1);
    EXPECT_EQ(selection(), std::vector<int>{5});
    sheet->deselectRows();
    EXPECT_TRUE(selection().empty());
    const auto add = [this](int top, int bottom, int column) {
        const QItemSelection more(sheet->model()->index(top, column), sheet->model()->index(bottom, column));
        sheet->selectionModel()->select(more, QItemSelectionModel::Select);
    };
    add(2, 4, 1);
    add(1, 3, 0);
    EXPECT_EQ(selection(), (std::vector<int>{1, 2, 3, 4})) << "each once";
    sheet->deselectRows();
    EXPECT_EQ(sheet->cptGetFocusNdx(), QPoint(-1, -1));
}

TEST_F(SheetRows, SelectingInCodeDoesNotScroll) {
    showWithRows(10);
    sheet->addRows(100);
    sheet->setActiveSelection(80, -1);
    EXPECT_EQ(sheet->firstVisibleRow(), 0);
    sheet->selectRows({73, 70, 71, 200}, 70);
    EXPECT_EQ(sheet->firstVisibleRow(), 0);
    EXPECT_EQ(selection(), (std::vector{70, 71, 73}));
    EXPECT_EQ(sheet->cptGetFocusNdx(), QPoint(0, 70));
}

TEST_F(SheetRows, StartingOverForgetsSelectionAndScroll) {
    showWithRows(10);
    for (const bool viaClear : {true, false}) {
        sheet->addRows(100);
        sheet->setActiveSelection(50, -1);
        sheet->vAutoVerScrolling(50);
        ASSERT_EQ(sheet->firstVisibleRow(), 41);
        viaClear ? sheet->clearRows() : static_cast<CSheetBuilder*>(sheet->model())->setRowCount(100);
        EXPECT_TRUE(selection().empty());
        EXPECT_EQ(sheet->cptGetFocusNdx(), QPoint(-1, -1));
        EXPECT_EQ(sheet->firstVisibleRow(), 0);
        EXPECT_EQ(sheet->rowCount(), viaClear ? 0 : 100);
        sheet->clearRows();
    }
}

TEST_F(SheetRows, AddedRowsLeaveSelectionAndScrollAlone) {
    showWithRows(10);
    sheet->addRows(100);
    sheet->setActiveSelection(50, -1);
    sheet->vAutoVerScrolling(50);
    sheet->addRows(100);
    EXPECT_EQ(selection(), std::vector<int>{50});
    EXPECT_EQ(sheet->firstVisibleRow(), 41);
    EXPECT_EQ(sheet->rowCount(), 200);
}

TEST_F(SheetRows, TheKeyboardAloneMakesNoRowCurrentAndLosingItKeepsTheRow) {
    auto* line = new QLineEdit(&window);
    line->setGeometry(0, 500, 100, 20);
    showWithRows(10);
    window.resize(600, 540);
    sheet->addRows(100);
    line->setFocus();
    sheet->setFocus();
    EXPECT_TRUE(sheet->bHasFocus());
    EXPECT_EQ(sheet->cptGetFocusNdx(), QPoint(-1, -1));
    QTest::keyClick(sheet, Qt::Key_Down);
    EXPECT_EQ(selection(), std::vector<int>{0});
    line->setFocus();
    EXPECT_FALSE(sheet->bHasFocus());
    EXPECT_EQ(sheet->cptGetFocusNdx(), QPoint(0, 0));
    EXPECT_EQ(selection(), std::vector<int>{0});
}

TEST_F(SheetRows, KeysMoveByRowPageAndToTheEnds) {
    showWithRows(10);
    sheet->addRows(1000);
    sheet->setFocus();
    sheet->setActiveSelection(5, -1);
    const struct {
        Qt::Key key;
        int row, first;
    } steps[] = {{Qt::Key_Down, 6, 0},      {Qt::Key_Up, 5, 0},     {Qt::Key_End, 999, 990},
                 {Qt::Key_Left, 999, 990},  {Qt::Key_Home, 0, 0},   {Qt::Key_Right, 0, 0},
                 {Qt::Key_PageDown, 10, 1}, {Qt::Key_PageUp, 0, 0}, {Qt::Key_Up, 0, 0}};
    for (const auto& step : steps) {
        QTest::keyClick(sheet, step.key);
        EXPECT_EQ(selection(), std::vector<int>{step.row}) << step.key;
        EXPECT_EQ(sheet->cptGetFocusNdx(), QPoint(0, step.row)) << step.key;
        EXPECT_EQ(sheet->firstVisibleRow(), step.first) << step.key;
    }
}

TEST_F(SheetRows, OnlyRowsOnScreenAreAskedFor) {
    showWithRows(10);
    sheet->addRows(1'000'000);
    cells.highestAsked = -1;
    sheet->grab();
    EXPECT_EQ(cells.lowestAsked, 0);
    EXPECT_EQ(cells.highestAsked, 9);
    sheet->vAutoVerScrolling(500'000);
    QCoreApplication::processEvents();
    cells.asked = 0;
    cells.lowestAsked = 1 << 30;
    sheet->grab();
    EXPECT_EQ(cells.lowestAsked, 499'991);
    EXPECT_EQ(cells.highestAsked, 500'000);
    cells.asked = 0;
    sheet->invalidateRow(3);
    QTest::keyClick(sheet, Qt::Key_A);  // no search through a million rows
    EXPECT_LE(cells.asked, 30);
}

}  // namespace wirepane
