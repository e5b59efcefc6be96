// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/sheet_builder.h"

#include "host/controls/sheet_cells.h"

#include <QBrush>

#include <algorithm>

using namespace wirepane;

CSheetBuilder::CSheetBuilder(QObject* parent) : QAbstractTableModel(parent) {}

bool CSheetBuilder::hasColumn(int column) const {
    return column >= 0 && column < static_cast<int>(columns.size());
}

void CSheetBuilder::insertColumn(int width, Qt::Alignment alignment, const QString& key) {
    const int end = static_cast<int>(columns.size());
    beginInsertColumns({}, end, end);
    columns.push_back({std::max(0, width), alignment, key, {}, {}});
    endInsertColumns();
}

void CSheetBuilder::setHeaderText(int column, const QString& text, const QString& toolTip) {
    if (!hasColumn(column))
        return;
    columns[column].header = text;
    columns[column].toolTip = toolTip;
    emit headerDataChanged(Qt::Horizontal, column, column);
}

int CSheetBuilder::initialWidth(int column) const {
    return hasColumn(column) ? columns[column].width : 0;
}

void CSheetBuilder::setCells(const SheetCells* cells) {
    source = cells;
    if (rows > 0 && !columns.empty())
        emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
}

void CSheetBuilder::setRowCount(int count) {
    count = std::max(0, count);
    queue.reset();
    if (count == 0 && rows == 0)
        return;
    beginResetModel();
    rows = count;
    endResetModel();
}

void CSheetBuilder::insertRows(int row, int count) {
    takeUpQueue();
    if (count <= 0 || row < 0 || row > rows)
        return;
    beginInsertRows({}, row, row + count - 1);
    rows += count;
    endInsertRows();
}

void CSheetBuilder::removeRows(int row, int count) {
    takeUpQueue();
    if (count <= 0 || row < 0 || count > rows - row)
        return;
    beginRemoveRows({}, row, row + count - 1);
    rows -= count;
    endRemoveRows();
}

void CSheetBuilder::rowWritten(int row) {
    if (queue)
        row = queue->oldRow(row);
    if (row >= 0 && row < rows && !columns.empty())
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int CSheetBuilder::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows;
}

int CSheetBuilder::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant CSheetBuilder::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(columns[index.column()].alignment);
    const int row = queue ? queue->newRow(index.row()) : index.row();
    if (source == nullptr || row < 0)
        return {};
    if (role == Qt::DisplayRole)
        return source->text(row, index.column());
    if (role == Qt::AccessibleTextRole)
        return source->spokenText(row, index.column());
    if (role != Qt::ForegroundRole && role != Qt::BackgroundRole)
        return {};
    const QColor colour = role == Qt::ForegroundRole ? source->textColour(row, index.column())
                                                     : source->highlight(row, index.column());
    return colour.isValid() ? QVariant(QBrush(colour)) : QVariant();
}

QVariant CSheetBuilder::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || !hasColumn(section))
        return {};
    if (role == Qt::DisplayRole)
        return columns[section].header;
    if (role == columnKeyRole)
        return columns[section].key;
    if (role == Qt::ToolTipRole && !columns[section].toolTip.isEmpty())
        return columns[section].toolTip.toHtmlEscaped();
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(columns[section].alignment);
    return {};
}

Qt::ItemFlags CSheetBuilder::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}
