// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/grid_methods.h"

#include "host/controls/sheet_builder.h"
#include "host/controls/super_sheet_wnd.h"
#include "terminal/automation/view_lookup.h"
#include "terminal/session/session.h"

#include <QBrush>
#include <QItemSelectionModel>
#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString categoryColumnKey = u"category"_s;

struct Rows {
    int first = 0;
    int count = 0;
};

// The rows asked for, by default those on screen, cut to those that exist.
Rows rowsAsked(Params& params, const CSuperSheetWnd& sheet) {
    const auto from = params.optionalNumber(u"from"_s, 0).value_or(sheet.firstVisibleRow());
    const auto count = params.optionalNumber(u"count"_s, 0).value_or(sheet.rowsPerPage());
    const std::int64_t rows = sheet.rowCount();
    const auto first = std::min(from, rows);
    return {static_cast<int>(first), static_cast<int>(std::min(count, rows - first))};
}

QJsonArray columnsReport(const CSuperSheetWnd& sheet) {
    QJsonArray columns;
    const auto* model = sheet.model();
    for (int column = 0; column < model->columnCount(); ++column)
        columns.append(QJsonObject{
            {u"key"_s, model->headerData(column, Qt::Horizontal, CSheetBuilder::columnKeyRole).toString()},
            {u"text"_s, model->headerData(column, Qt::Horizontal).toString()},
            {u"width"_s, sheet.colWidth(column)}});
    return columns;
}

QJsonArray cellsReport(const QAbstractItemModel& model, const Rows& rows) {
    QJsonArray cells;
    for (int row = rows.first; row < rows.first + rows.count; ++row) {
        QJsonArray texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts.append(model.index(row, column).data().toString());
        cells.append(texts);
    }
    return cells;
}

QJsonArray coloursReport(const CSuperSheetWnd& sheet, const Rows& rows) {
    QJsonArray colours;
    const int column = sheet.column(categoryColumnKey);
    for (int row = rows.first; row < rows.first + rows.count; ++row) {
        const QVariant brush = sheet.model()->index(row, column).data(Qt::ForegroundRole);
        colours.append(brush.isValid() ? QJsonValue(brush.value<QBrush>().color().name())
                                       : QJsonValue(QJsonValue::Null));
    }
    return colours;
}

QJsonArray keysReport(const NewsViewAccess& access, int list, const Rows& rows) {
    QJsonArray keys;
    for (const HeadlineKey& key : access.keysOf(list, rows.first, rows.count))
        keys.append(QJsonObject{{u"service"_s, key.service},
                                {u"time"_s, static_cast<qint64>(key.time)},
                                {u"seq"_s, key.sequence}});
    return keys;
}

QJsonArray outOfSightReport(const CSuperSheetWnd& sheet, const Rows& rows) {
    QJsonArray hidden;
    for (int row = rows.first; row < rows.first + rows.count; ++row) {
        if (!sheet.isInSight(row))
            hidden.append(row);
    }
    return hidden;
}

QJsonArray selectionReport(const CSuperSheetWnd& sheet) {
    std::vector<int> rows;
    sheet.vGetAllSelectionNdx(rows);
    QJsonArray selection;
    for (const int row : rows)
        selection.append(row);
    return selection;
}

void requireRow(Params& params, const CSuperSheetWnd& sheet, std::int64_t row) {
    if (row >= sheet.rowCount())
        params.fail(u"the grid has no row %1: it has %2"_s.arg(row).arg(sheet.rowCount()), RpcCode::NotFound);
}

}  // namespace

void GridMethods::addTo(MethodTable& table) {
    table.add(u"grid.read"_s, [this](Params& params) { return read(params); });
    table.addModal(u"grid.select"_s, [this](Params& params) { return select(params); });
    table.add(u"grid.scroll"_s, [this](Params& params) { return scroll(params); });
}

Answer GridMethods::read(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    const CSuperSheetWnd* sheet = view != nullptr ? sheetOf(params, *view) : nullptr;
    if (sheet == nullptr)
        return {};
    const Rows rows = rowsAsked(params, *sheet);
    const int focus = sheet->cptGetFocusNdx().y();
    return QJsonObject{
        {u"rows"_s, sheet->rowCount()},
        {u"columns"_s, columnsReport(*sheet)},
        {u"from"_s, rows.first},
        {u"firstVisible"_s, sheet->firstVisibleRow()},
        {u"rowsPerPage"_s, sheet->rowsPerPage()},
        {u"selection"_s, selectionReport(*sheet)},
        {u"focus"_s, focus},
        {u"hidden"_s, outOfSightReport(*sheet, rows)},
        {u"cells"_s, cellsReport(*sheet->model(), rows)},
        {u"colours"_s, coloursReport(*sheet, rows)},
        {u"keys"_s, keysReport(*view->access, static_cast<int>(params.number(u"list"_s)), rows)}};
}

Answer GridMethods::select(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    CSuperSheetWnd* sheet = view != nullptr ? sheetOf(params, *view) : nullptr;
    const auto rows = params.optionalNumbers(u"rows"_s).value_or(std::vector<int>());
    const auto focus = params.optionalNumber(u"focus"_s, 0);
    if (sheet == nullptr)
        return {};
    for (const int row : rows)
        requireRow(params, *sheet, row);
    requireRow(params, *sheet, focus.value_or(-1));
    if (params.error())
        return {};
    QItemSelection selection;
    const auto* model = sheet->model();
    for (const int row : rows)
        selection.select(model->index(row, 0), model->index(row, model->columnCount() - 1));
    sheet->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    const auto current = focus.value_or(rows.empty() ? -1 : rows.back());
    sheet->selectionModel()->setCurrentIndex(model->index(static_cast<int>(current), 0),
                                             QItemSelectionModel::NoUpdate);
    return {};
}

Answer GridMethods::scroll(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    CSuperSheetWnd* sheet = view != nullptr ? sheetOf(params, *view) : nullptr;
    const auto row = params.number(u"row"_s, 0);
    if (sheet == nullptr)
        return {};
    requireRow(params, *sheet, row);
    if (!params.error())
        sheet->scrollTo(sheet->model()->index(static_cast<int>(row), 0), QAbstractItemView::PositionAtTop);
    return {};
}

}  // namespace wirepane
