// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/newest_row.h"

#include "headline_list/headline_list.h"
#include "host/controls/super_sheet_wnd.h"
#include "news_view/view_context.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QScopedValueRollback>

#include <utility>

namespace wirepane {

NewestRow::NewestRow(ViewContext& context, std::function<bool()> wanted)
    : view(context), isWanted(std::move(wanted)) {}

void NewestRow::watch(CSuperSheetWnd& grid, ListIndex list) {
    grid.installEventFilter(this);
    const QAbstractItemModel* const rows = grid.model();
    connect(rows, &QAbstractItemModel::rowsInserted, this, &NewestRow::followSoon);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, &NewestRow::followSoon);
    connect(rows, &QAbstractItemModel::layoutChanged, this, &NewestRow::followSoon);
    connect(rows, &QAbstractItemModel::modelReset, this, &NewestRow::followSoon);
    connect(&grid, &CSuperSheetWnd::leftButtonUp, this, [this, list] { leftToReader.insert(list); });
    connect(grid.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this, &grid, list](const QModelIndex& current) {
                // Where the row went because its own has left, the reader went nowhere.
                if (!isGoing && !grid.isTakingUpRows() && current.isValid())
                    leftToReader.insert(list);
            });
}

void NewestRow::forget(ListIndex list) {
    leftToReader.erase(list);
    followSoon();
}

bool NewestRow::isRead(ListIndex list) const {
    const CSuperSheetWnd* const grid = view.listOf(list).grid();
    return leftToReader.contains(list) || (grid != nullptr && grid->firstVisibleRow() > 0);
}

bool NewestRow::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Show)
        followSoon();
    return false;
}

void NewestRow::followSoon() {
    if (std::exchange(isPosted, true))
        return;
    QMetaObject::invokeMethod(this, &NewestRow::follow, Qt::QueuedConnection);
}

void NewestRow::follow() {
    isPosted = false;
    const ListIndex list = view.shownList();
    CSuperSheetWnd* const grid = view.listOf(list).grid();
    if (!isWanted() || grid == nullptr || leftToReader.contains(list) || !view.paneShowsStories() ||
        grid->rowCount() == 0 || grid->firstVisibleRow() > 0 || grid->cptGetFocusNdx().y() == 0)
        return;
    const QScopedValueRollback going(isGoing, true);
    grid->setActiveSelection(0, -1);
}

}  // namespace wirepane
