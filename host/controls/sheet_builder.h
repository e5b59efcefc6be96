// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QString>

#include <vector>

// Where a sheet takes the texts of its cells from. The sheet asks for rows on screen only, each time it
// paints them, and keeps nothing: answers must be quick. Interface thread.
class SheetCells {
public:
    SheetCells() = default;
    SheetCells(const SheetCells&) = delete;
    SheetCells& operator=(const SheetCells&) = delete;
    virtual ~SheetCells() = default;

    // The text of a cell, drawn as it stands (never as markup); empty for a cell that was not written.
    virtual QString Text(int row, int column) const = 0;
    // The text colour of a cell; an invalid colour means the sheet's own.
    virtual QColor TextColour(int row, int column) const;
};

// The columns and the number of rows of a sheet: the model under CSuperSheetWnd. Rows and columns count from
// 0.
class CSheetBuilder : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit CSheetBuilder(QObject* parent = nullptr);

    // Appends a column `width` pixels wide (0 or more: a width of 0 hides it).
    void vInsertColumn(int width, Qt::Alignment alignment);
    // A column out of range is ignored.
    void vSetHeaderText(int column, const QString& text);
    // The width that the column was inserted with; 0 for a column out of range.
    int iGetInitialWidth(int column) const;

    // The source of the cells: not owned, must outlive the builder or be taken out with null (empty cells).
    void vSetCells(const SheetCells* cells);

    int iGetRowCount() const { return rows; }
    // Starts over with this many rows: one model reset, and none when the sheet is and stays empty. A count
    // below 0 counts as 0.
    void vSetRowCount(int count);
    // Puts `count` rows in before `row` (iGetRowCount(): at the end), without touching what is selected.
    void vInsertRows(int row, int count);
    void vRemoveRows(int row, int count);
    // The cells of a row have been written: it is drawn again when it is on screen. Ignored out of range.
    void vRowWritten(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Column {
        int width;
        Qt::Alignment alignment;
        QString header;
    };
    bool hasColumn(int column) const;

    std::vector<Column> columns;
    const SheetCells* source = nullptr;
    int rows = 0;
};
