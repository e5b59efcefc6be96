// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/sheet_builder.h"

#include "tests/host/controls/sheet_fixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace wirepane {

namespace {

class SheetBuilder : public testing::Test {
protected:
    SheetBuilder() : tester(&builder, QAbstractItemModelTester::FailureReportingMode::Fatal) {
        builder.insertColumn(100, Qt::AlignLeft | Qt::AlignVCenter);
        builder.insertColumn(50, Qt::AlignRight | Qt::AlignVCenter);
    }

    CSheetBuilder builder;
    QAbstractItemModelTester tester;
    QSignalSpy resets{&builder, &QAbstractItemModel::modelReset};
    QSignalSpy inserted{&builder, &QAbstractItemModel::rowsInserted};
    QSignalSpy removed{&builder, &QAbstractItemModel::rowsRemoved};
    QSignalSpy changed{&builder, &QAbstractItemModel::dataChanged};
};

}  // namespace

TEST_F(SheetBuilder, StartsOverWithOneResetAndNoneWhileEmpty) {
    const struct {
        int count, rows, resets;
    } steps[] = {{0, 0, 0}, {5, 5, 1}, {5, 5, 1}, {1'000'000, 1'000'000, 1}, {-3, 0, 1}, {0, 0, 0}};
    for (const auto& step : steps) {
        resets.clear();
        builder.setRowCount(step.count);
        EXPECT_EQ(builder.rowCount(), step.rows) << step.count;
        EXPECT_EQ(resets.count(), step.resets) << step.count;
    }
    EXPECT_EQ(inserted.count() + removed.count() + changed.count(), 0);
}

TEST_F(SheetBuilder, InsertsAndRemovesExactlyTheRowsAsked) {
    const struct {
        bool insert;
        int row, count, rows;
        bool happens;
    } steps[] = {{true, 0, 3, 3, true},   {true, 3, 2, 5, true},    {true, 6, 1, 5, false},
                 {true, -1, 1, 5, false}, {true, 0, 0, 5, false},   {false, 1, 2, 3, true},
                 {false, 2, 2, 3, false}, {false, -1, 1, 3, false}, {false, 0, 3, 0, true}};
    for (const auto& step : steps) {
        QSignalSpy& told = step.insert ? inserted : removed;
        told.clear();
        step.insert ? builder.insertRows(step.row, step.count) : builder.removeRows(step.row, step.count);
        EXPECT_EQ(builder.rowCount(), step.rows);
        ASSERT_EQ(told.count(), step.happens ? 1 : 0);
        if (!step.happens)
            continue;
        EXPECT_EQ(told[0][1].toInt(), step.row);
        EXPECT_EQ(told[0][2].toInt(), step.row + step.count - 1);
    }
    EXPECT_EQ(resets.count(), 0);
}

TEST_F(SheetBuilder, AWrittenRowChangesThatRowAlone) {
    builder.setRowCount(10);
    for (const int outside : {-1, 10})
        builder.rowWritten(outside);
    EXPECT_EQ(changed.count(), 0);
    for (const int row : {0, 9}) {
        changed.clear();
        builder.rowWritten(row);
        ASSERT_EQ(changed.count(), 1);
        EXPECT_EQ(changed[0][0].toModelIndex(), builder.index(row, 0));
        EXPECT_EQ(changed[0][1].toModelIndex(), builder.index(row, 1));
    }
}

TEST_F(SheetBuilder, TakesTextsAndColoursFromTheCells) {
    builder.setRowCount(3);
    const QModelIndex cell = builder.index(2, 1);
    EXPECT_EQ(cell.data().toString(), QString());
    const NumberedCells cells;
    builder.setCells(&cells);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(cell.data().toString(), QStringLiteral("2/1"));
    EXPECT_EQ(cell.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(Qt::red));
    EXPECT_FALSE(cell.siblingAtColumn(0).data(Qt::ForegroundRole).isValid());
    EXPECT_EQ(cell.data(Qt::TextAlignmentRole).value<Qt::Alignment>(), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_FALSE(cell.data(Qt::ToolTipRole).isValid());  // a title is text, and a tool tip guesses markup
    builder.setCells(nullptr);
    EXPECT_EQ(cell.data().toString(), QString());
}

}  // namespace wirepane
