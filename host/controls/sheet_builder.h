// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/row_runs.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QString>

#include <optional>
#include <vector>

namespace wirepane {
class SheetCells;

}  // namespace wirepane

// The columns and the number of rows of a sheet: the model under CSuperSheetWnd. Rows and columns count from
// 0.
//
// Rows that come and go one by one are queued: the cells' source has them at once, the model takes all of
// them up together, later in the same turn of the event loop or when takeUpQueue is called. Until then its
// rows show the cells that they had. Nothing may be queued from a slot of the model's signals.
class WIREPANE_HOST_EXPORT CSheetBuilder : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit CSheetBuilder(QObject* parent = nullptr);

    // The header's data of this role is the key of a column.
    static constexpr int columnKeyRole = Qt::UserRole;

    // Appends a column `width` pixels wide (0 or more: a width of 0 hides it). The key is what code finds it
    // by, wherever it stands.
    void insertColumn(int width, Qt::Alignment alignment, const QString& key = {});
    // What the header says, and in a tool tip (plain text; empty: none). A column out of range is ignored.
    void setHeaderText(int column, const QString& text, const QString& toolTip = {});
    // The width that the column was inserted with; 0 for a column out of range.
    int initialWidth(int column) const;

    // The source of the cells: not owned, must outlive the builder or be taken out with null (empty cells).
    void setCells(const wirepane::SheetCells* cells);
    const wirepane::SheetCells* cells() const { return source; }
    // Of the texts of a column; the column must be there.
    Qt::Alignment alignment(int column) const { return columns[static_cast<std::size_t>(column)].alignment; }

    // Without what is queued.
    int rowCount() const { return rows; }
    // Starts over with this many rows, without what was queued: one model reset, and none when the sheet is
    // and stays empty. A count below 0 counts as 0.
    void setRowCount(int count);
    // Puts `count` rows in before `row` (rowCount(): at the end), without touching what is selected.
    // Takes the queue up first.
    void insertRows(int row, int count);
    void removeRows(int row, int count);
    // The cells of a row (counted with what is queued) have been written: it is drawn again when it is on
    // screen. Ignored out of range.
    void rowWritten(int row);

    // A row has come before `row`, has gone, has moved to row 0: rows are counted with what is queued
    // already. Out of range: ignored. Rows that are selected or current stay so wherever they move.
    void queueInsert(int row);
    void queueRemove(int row);
    void queueMoveToTop(int row);
    // Where the first of the rows from `row` on that stay in their order goes: how many rows further down.
    // What is queued; null: nothing.
    const wirepane::RowRuns* queued() const { return queue ? &*queue : nullptr; }
    int queuedShift(int row) const { return queue ? queue->shiftFrom(row) : 0; }
    // Where the row goes; -1: it goes away.
    int queuedRow(int row) const { return queue ? queue->newRow(row) : row; }
    // Rows put in at the top, or at few places, are told as rows put in, rows taken out as rows taken out,
    // all else as a change of layout.
    void takeUpQueue();

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    void queueAboutToBeTakenUp();
    void queueTakenUp();

private:
    struct Column {
        int width;
        Qt::Alignment alignment;
        QString key;
        QString header;
        QString toolTip;
    };
    bool hasColumn(int column) const;
    int queuedRowCount() const { return queue ? queue->size() : rows; }
    wirepane::RowRuns& openQueue();
    void takeOutRows();
    void putInRows();
    void putInWhereTheyStand();
    void putInAtTop();
    void putInOrder();

    std::vector<Column> columns;
    const wirepane::SheetCells* source = nullptr;
    int rows = 0;
    std::optional<wirepane::RowRuns> queue;  // what the source's rows are in the model
    bool takingUp = false;
};
