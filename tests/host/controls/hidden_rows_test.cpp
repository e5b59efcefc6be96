// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/hidden_rows.h"

#include "host/controls/row_runs.h"
#include "tests/host/controls/sheet_fixture.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <numeric>
#include <random>

namespace wirepane {
namespace {

using SheetSight = SheetFixture;

TEST(HiddenRows, CountsPlacesPastWhatIsOutOfSight) {
    HiddenRows rows;
    EXPECT_EQ(rows.hide({5, 0, 2, 5}), (std::vector<int>{0, 2, 5}));
    EXPECT_EQ(rows.hide({2, 3}), std::vector<int>{3}) << "what was out of sight is no change";
    const int rowAtPlace[] = {1, 4, 6, 7};
    for (int place = 0; place < 4; ++place) {
        EXPECT_EQ(rows.rowAt(place), rowAtPlace[place]);
        EXPECT_EQ(rows.placeOf(rowAtPlace[place]), place);
    }
    EXPECT_EQ(rows.placeOf(2), 1) << "of a row out of sight: the next one's";
    EXPECT_EQ(rows.show({3, 4}), std::vector<int>{3});
    RowRuns runs(8);
    runs.insert(0);
    runs.moveToTop(3);
    runs.remove(6);
    rows.follow(runs);
    EXPECT_EQ(rows.count(), 2) << "one is gone";
    EXPECT_TRUE(rows.holds(0) && rows.holds(2));
}

TEST_F(SheetSight, ScrollsFindsAndWalksOverRowsOutOfSight) {
    showWithRows(10);
    sheet->addRows(100);
    QSignalSpy scrolled(sheet, &CSuperSheetWnd::scrolledVertically);
    sheet->changeSight({10, 11, 12, 13, 14, 99, 100, -1}, {});
    EXPECT_EQ(scrolled.count(), 1);
    EXPECT_EQ(sheet->verticalScrollBar()->maximum(), 94 - 10);
    sheet->setFirstVisibleRow(20);
    EXPECT_EQ(sheet->firstVisibleRow(), 20);
    EXPECT_EQ(sheet->rowsOnScreen().front(), 20);
    EXPECT_EQ(sheet->iCalcRowNdx({5, line() + sheet->frameWidth() + line() / 2}), 20);
    sheet->setFirstVisibleRow(8);
    EXPECT_EQ(sheet->rowsOnScreen(), (std::vector<int>{8, 9, 15, 16, 17, 18, 19, 20, 21, 22, 23}));
    EXPECT_EQ(sheet->iCalcRowNdx({5, line() + sheet->frameWidth() + 2 * line() + line() / 2}), 15);
    sheet->setActiveSelection(9, -1);
    QTest::keyClick(sheet, Qt::Key_Down);
    EXPECT_EQ(sheet->cptGetFocusNdx().y(), 15);
    QTest::keyClick(sheet, Qt::Key_End);
    EXPECT_EQ(sheet->cptGetFocusNdx().y(), 98);
    sheet->setFirstVisibleRow(30);
    sheet->changeSight({0, 1}, {10, 11, 12});
    EXPECT_EQ(sheet->firstVisibleRow(), 30) << "what is on screen keeps its place";
    sheet->clearRows();
    sheet->addRows(20);
    EXPECT_TRUE(sheet->isInSight(0)) << "the rows are others";
}

// Whatever comes, goes and moves, sheet and header agree, and the rows on screen stay.
TEST_F(SheetSight, StaysWithItsRowsThroughAnyChange) {
    showWithRows(10);
    sheet->addRows(60);
    std::vector<int> ids(60);  // what stands in each row; odd ones are out of sight
    std::iota(ids.begin(), ids.end(), 0);
    std::vector<int> odd;
    for (int row = 1; row < 60; row += 2)
        odd.push_back(row);
    sheet->changeSight(odd, {});
    std::mt19937 random(7);
    const auto below = [&](std::size_t end) { return static_cast<int>(random() % end); };
    int next = 1000;  // even: in sight
    for (int turn = 0; turn < 300; ++turn) {
        sheet->verticalScrollBar()->setValue(below(20));
        const bool atTop = sheet->verticalScrollBar()->value() == 0;
        const int first = ids[static_cast<std::size_t>(sheet->firstVisibleRow())];
        for (int change = below(6); change >= 0; --change) {
            const int row = below(ids.size());
            const int kind = below(4);
            if (kind == 0 && ids[static_cast<std::size_t>(row)] != first && ids.size() > 40) {
                ids.erase(ids.begin() + row);
                sheet->deleteRow(row);
            } else if (kind == 1 && ids[static_cast<std::size_t>(row)] != first) {
                std::rotate(ids.begin(), ids.begin() + row, ids.begin() + row + 1);
                sheet->moveRowToTop(row);
            } else {
                const int place = kind == 2 ? row : 0;
                ids.insert(ids.begin() + place, next += 2);
                sheet->insertRow(place);
            }
        }
        ASSERT_EQ(sheet->rowCount(), static_cast<int>(ids.size()));
        for (int row = 0; row < sheet->rowCount(); ++row) {
            const bool inSight = ids[static_cast<std::size_t>(row)] % 2 == 0;
            ASSERT_EQ(sheet->isInSight(row), inSight) << turn << ": " << row;
            ASSERT_EQ(sheet->isRowHidden(row), !inSight) << turn << ": " << row;
        }
        if (!atTop) {
            ASSERT_EQ(ids[static_cast<std::size_t>(sheet->firstVisibleRow())], first) << turn;
        }
    }
}

}  // namespace
}  // namespace wirepane
