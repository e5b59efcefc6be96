// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Rows that come and go one by one: the model takes them up together, and what is selected, current or on
// screen stays.
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_cells.h"
#include "tests/host/controls/sheet_fixture.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>

namespace wirepane {

namespace {

// A plain list of numbered rows: the trivial model of what a sheet shows.
class PlainRows : public SheetCells {
public:
    explicit PlainRows(int count) { restart(count); }
    void restart(int count) {
        ids.resize(static_cast<std::size_t>(count));
        std::iota(ids.begin(), ids.end(), 0);
        nextId = count;
    }
    QString text(int row, int) const override {
        return QString::number(ids.at(static_cast<std::size_t>(row)));
    }

    void insert(int row) { ids.insert(ids.begin() + row, nextId++); }
    void remove(int row) { ids.erase(ids.begin() + row); }
    void moveToTop(int row) { std::rotate(ids.begin(), ids.begin() + row, ids.begin() + row + 1); }

    std::vector<int> ids;
    int nextId = 0;
};

class RowQueue : public testing::Test {
protected:
    explicit RowQueue(int count = 100) : rows(count) {
        builder.insertColumn(100, Qt::AlignLeft);
        builder.insertColumn(100, Qt::AlignLeft);
        builder.setCells(&rows);
        builder.setRowCount(count);
    }

    void insert(int row) {
        rows.insert(row);
        builder.queueInsert(row);
    }
    void remove(int row) {
        rows.remove(row);
        builder.queueRemove(row);
    }
    void moveToTop(int row) {
        rows.moveToTop(row);
        builder.queueMoveToTop(row);
    }
    int idAt(int row) const { return builder.index(row, 0).data().toString().toInt(); }
    void expectTakenUp() const {
        ASSERT_EQ(builder.rowCount(), static_cast<int>(rows.ids.size()));
        for (int row = 0; row < builder.rowCount(); ++row)
            ASSERT_EQ(idAt(row), rows.ids[static_cast<std::size_t>(row)]) << "row " << row;
    }

    PlainRows rows;
    CSheetBuilder builder;
    QAbstractItemModelTester tester{&builder, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

}  // namespace

TEST_F(RowQueue, TellsEachBatchInAsFewSignalsAsItTakes) {
    struct Case {
        const char* what;
        std::function<void()> batch;
        int inserted, removed, layouts;
    };
    const auto times = [](int count, const std::function<void(int)>& step) {
        return [count, step] {
            for (int i = 0; i < count; ++i)
                step(i);
        };
    };
    const Case cases[] = {
        {"nothing", [] {}, 0, 0, 0},
        {"a burst at the top", times(5000, [&](int) { insert(0); }), 1, 0, 0},
        {"a burst near the top", times(5000, [&](int i) { insert(std::min(i, i % 7)); }), 1, 0, 0},
        {"one late row", [&] { insert(40); }, 1, 0, 0},
        {"three late rows", times(3, [&](int i) { insert(40 + 5 * i); }), 3, 0, 0},
        {"late rows at many places", times(20, [&](int i) { insert(40 + 2 * i); }), 1, 0, 1},
        {"a row moved", [&] { moveToTop(30); }, 0, 0, 1},
        {"rows moved between others that come", times(50, [&](int i) { i % 2 ? insert(0) : moveToTop(60); }),
         1, 0, 1},
        {"the first row moved to where it is", [&] { moveToTop(0); }, 0, 0, 0},
        {"neighbours removed", times(10, [&](int) { remove(20); }), 0, 1, 0},
        {"one removed, one put in", [&] { remove(20), insert(0); }, 1, 1, 0},
        {"put in and removed again", [&] { insert(20), remove(20); }, 0, 0, 0},
        {"all removed", times(100, [&](int) { remove(0); }), 0, 1, 0},
    };
    QSignalSpy inserted(&builder, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&builder, &QAbstractItemModel::rowsRemoved);
    QSignalSpy layouts(&builder, &QAbstractItemModel::layoutChanged);
    QSignalSpy resets(&builder, &QAbstractItemModel::modelReset);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        rows.restart(100);
        builder.setRowCount(100);
        resets.clear();
        c.batch();
        EXPECT_EQ(inserted.count() + removed.count() + layouts.count(), 0) << "told too early";
        QCoreApplication::processEvents();
        EXPECT_EQ(inserted.count(), c.inserted);
        EXPECT_EQ(removed.count(), c.removed);
        EXPECT_EQ(layouts.count(), c.layouts);
        EXPECT_EQ(resets.count(), 0);
        expectTakenUp();
        for (QSignalSpy* spy : {&inserted, &removed, &layouts})
            spy->clear();
    }
}

TEST_F(RowQueue, StartingOverDropsWhatIsQueued) {
    builder.queueInsert(0);
    builder.queueRemove(50);
    builder.setRowCount(100);
    for (const int outside : {-1, 101})
        builder.queueInsert(outside);
    for (const int outside : {-1, 100}) {
        builder.queueRemove(outside);
        builder.queueMoveToTop(outside);
    }
    QSignalSpy inserted(&builder, &QAbstractItemModel::rowsInserted);
    QCoreApplication::processEvents();
    EXPECT_EQ(inserted.count(), 0);
    expectTakenUp();
}

// Whatever is queued: until it is taken up the model shows what it showed, then what the list holds; and an
// index that was kept goes with its row, or is gone with it.
TEST_F(RowQueue, RandomBatchesKeepModelAndIndexesRight) {
    std::mt19937 random(20260302);
    const auto below = [&](std::size_t end) { return static_cast<int>(random() % end); };
    for (int round = 0; round < 120; ++round) {
        const std::vector<int> before = rows.ids;
        std::vector<std::pair<QPersistentModelIndex, int>> kept;
        for (int i = 0; i < 10 && !before.empty(); ++i) {
            const int row = below(before.size());
            kept.emplace_back(builder.index(row, i % 2), before[static_cast<std::size_t>(row)]);
        }
        for (int step = below(40); step-- > 0;) {
            const std::size_t count = rows.ids.size();
            const int kind = below(8);
            if (kind < 5 || count < 20)
                insert(kind < 3 ? 0 : below(count + 1));
            else if (kind == 5)
                moveToTop(below(count));
            else
                remove(below(count));
        }
        ASSERT_EQ(builder.rowCount(), static_cast<int>(before.size()));
        for (std::size_t row = 0; row < before.size(); ++row) {
            const bool there = std::find(rows.ids.begin(), rows.ids.end(), before[row]) != rows.ids.end();
            ASSERT_EQ(builder.index(static_cast<int>(row), 0).data().toString(),
                      there ? QString::number(before[row]) : QString());
        }
        builder.takeUpQueue();
        expectTakenUp();
        for (const auto& [index, id] : kept) {
            const bool there = std::find(rows.ids.begin(), rows.ids.end(), id) != rows.ids.end();
            ASSERT_EQ(index.isValid(), there) << "round " << round;
            ASSERT_TRUE(!there || index.data().toString().toInt() == id) << "round " << round;
        }
    }
}

class SheetOfRows : public SheetFixture {
protected:
    SheetOfRows() : rows(1000) {
        showWithRows(10);
        sheet->setCells(&rows);
        sheet->addRows(1000);
    }
    void insert(int row) {
        rows.insert(row);
        sheet->insertRow(row);
    }
    void moveToTop(int row) {
        rows.moveToTop(row);
        sheet->moveRowToTop(row);
    }
    void remove(int row) {
        rows.remove(row);
        sheet->deleteRow(row);
    }
    int firstId() const { return rows.ids[static_cast<std::size_t>(sheet->firstVisibleRow())]; }
    std::vector<int> selectedIds() const {
        std::vector<int> ids;
        for (const int row : selection())
            ids.push_back(rows.ids[static_cast<std::size_t>(row)]);
        std::sort(ids.begin(), ids.end());
        return ids;
    }

    PlainRows rows;
};

TEST_F(SheetOfRows, RowsOnScreenKeepTheirPlace) {
    struct Case {
        const char* what;
        std::function<void()> batch;
        int first;  // of the ids on screen afterwards; 500 before
        bool told;  // that others have come on screen
    };
    const Case cases[] = {
        {"rows above", [&] { insert(0), insert(0), insert(7); }, 500, false},
        {"a row below", [&] { insert(505); }, 500, false},
        {"a row above goes", [&] { remove(3); }, 500, false},
        {"a row from below moves to the top", [&] { moveToTop(800); }, 500, false},
        {"a row from above moves to the top", [&] { moveToTop(100); }, 500, false},
        {"a row on screen moves to the top", [&] { moveToTop(503); }, 500, true},
        {"a row on screen goes", [&] { remove(503); }, 500, true},
        {"the first row on screen moves to the top", [&] { moveToTop(500); }, 499, true},
        {"the first row on screen goes", [&] { remove(500); }, 499, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        rows.restart(1000);
        sheet->clearRows();
        sheet->addRows(1000);
        QCoreApplication::processEvents();
        sheet->verticalScrollBar()->setValue(500);
        const QImage before = sheet->viewport()->grab().toImage();
        QSignalSpy told(sheet, &CSuperSheetWnd::scrolledVertically);
        c.batch();
        const int expected = sheet->firstVisibleRowToCome();
        EXPECT_EQ(sheet->firstVisibleRow(), expected);
        EXPECT_EQ(firstId(), c.first);
        EXPECT_EQ(told.count(), c.told ? 1 : 0);
        if (c.first == 500 && rows.ids[static_cast<std::size_t>(expected) + 9] == 509) {
            EXPECT_EQ(sheet->viewport()->grab().toImage(), before) << "rows keep their colours too";
        }
    }
}

TEST_F(SheetOfRows, SelectionAndCurrentRowFollowTheirHeadlines) {
    sheet->setActiveSelection(20, -1);
    for (const int row : {22, 23, 24, 40})
        sheet->selectionModel()->select(sheet->model()->index(row, 0),
                                        QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const std::vector<int> chosen = selectedIds();
    ASSERT_EQ(chosen, (std::vector<int>{20, 22, 23, 24, 40}));
    std::mt19937 random(5);
    for (int round = 0; round < 60; ++round) {
        for (int step = 0; step < 20; ++step) {
            if (random() % 3 == 0)
                moveToTop(static_cast<int>(random() % 100));
            else
                insert(static_cast<int>(random() % 60));
        }
        ASSERT_EQ(selectedIds(), chosen) << "round " << round;
        ASSERT_EQ(rows.ids[static_cast<std::size_t>(sheet->cptGetFocusNdx().y())], 20) << "round " << round;
    }
}

TEST_F(SheetOfRows, WhateverReadsTheSheetFindsTheRowsThere) {
    const std::pair<const char*, std::function<void()>> readers[] = {
        {"count", [&] { sheet->rowCount(); }},
        {"first row", [&] { sheet->firstVisibleRow(); }},
        {"point",
         [&] {
             sheet->iCalcRowNdx({10, 30});
         }},
        {"current", [&] { sheet->cptGetFocusNdx(); }},
        {"selection", [&] { selection(); }},
        {"select", [&] { sheet->setActiveSelection(3, -1); }},
        {"scroll", [&] { sheet->vAutoVerScrolling(3); }},
        {"scroll to the top", [&] { sheet->resetScroll(); }},
        {"paint", [&] { sheet->viewport()->repaint(); }},
        {"key", [&] { QTest::keyClick(sheet, Qt::Key_Down); }},
        {"click",
         [&] {
             QTest::mouseClick(sheet->viewport(), Qt::LeftButton, {}, {10, 40});
         }},
        {"append",
         [&] {
             rows.insert(static_cast<int>(rows.ids.size()));
             sheet->addRows(1);
         }},
        {"the next turn", [] { QCoreApplication::processEvents(); }},
    };
    for (const auto& [what, read] : readers) {
        const int count = sheet->model()->rowCount();
        insert(0);
        ASSERT_EQ(sheet->model()->rowCount(), count) << what;
        read();
        EXPECT_GT(sheet->model()->rowCount(), count) << what;
        QCoreApplication::processEvents();
    }
}

}  // namespace wirepane
