// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The queue of a sheet's model: rows that have come and gone in its source, taken up together.
#include "host/controls/sheet_builder.h"

#include <algorithm>

using namespace wirepane;

namespace {

// Up to this many places, rows are put in one place after the other.
constexpr int fewPlaces = 8;

}  // namespace

RowRuns& CSheetBuilder::openQueue() {
    if (!queue) {
        queue.emplace(rows);
        QMetaObject::invokeMethod(this, &CSheetBuilder::takeUpQueue, Qt::QueuedConnection);
    }
    return *queue;
}

void CSheetBuilder::queueInsert(int row) {
    if (row >= 0 && row <= queuedRowCount())
        openQueue().insert(row);
}

void CSheetBuilder::queueRemove(int row) {
    if (row >= 0 && row < queuedRowCount())
        openQueue().remove(row);
}

void CSheetBuilder::queueMoveToTop(int row) {
    if (row >= 0 && row < queuedRowCount())
        openQueue().moveToTop(row);
}

void CSheetBuilder::takeUpQueue() {
    if (!queue || takingUp)
        return;
    takingUp = true;
    emit queueAboutToBeTakenUp();
    takeOutRows();
    putInRows();
    putInOrder();
    queue.reset();
    takingUp = false;
    emit queueTakenUp();
}

// After each step the model's rows and the queue agree again, so that a listener can read cells at any point.
void CSheetBuilder::takeOutRows() {
    for (const RowRuns::Run& run : queue->gone(rows)) {
        beginRemoveRows({}, run.first, run.first + run.count - 1);
        queue->renumber(run.first, -run.count);
        rows -= run.count;
        endRemoveRows();
    }
}

void CSheetBuilder::putInRows() {
    const auto& runs = queue->runs();
    const auto places = std::count_if(runs.begin(), runs.end(),
                                      [](const RowRuns::Run& run) { return run.first == RowRuns::isNew; });
    if (places > fewPlaces || (places > 0 && !queue->inOrder()))
        putInAtTop();
    else
        putInWhereTheyStand();
}

void CSheetBuilder::putInWhereTheyStand() {
    int row = 0;
    for (std::size_t i = 0; i < queue->runs().size(); ++i) {
        const RowRuns::Run run = queue->runs()[i];
        if (run.first == RowRuns::isNew) {
            beginInsertRows({}, row, row + run.count - 1);
            queue->renumber(row, run.count);
            queue->setOld(i, row);
            rows += run.count;
            endInsertRows();
        }
        row += run.count;
    }
}

// The change of layout that follows brings them to their places.
void CSheetBuilder::putInAtTop() {
    const int count = queue->size() - rows;
    beginInsertRows({}, 0, count - 1);
    queue->renumber(0, count);
    int row = 0;
    for (std::size_t i = 0; i < queue->runs().size(); ++i) {
        if (queue->runs()[i].first != RowRuns::isNew)
            continue;
        queue->setOld(i, row);
        row += queue->runs()[i].count;
    }
    rows += count;
    endInsertRows();
}

void CSheetBuilder::putInOrder() {
    if (queue->unchanged())
        return;
    emit layoutAboutToBeChanged();
    const QModelIndexList from = persistentIndexList();
    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex& old : from)
        to.append(index(queue->newRow(old.row()), old.column()));
    queue.emplace(rows);
    changePersistentIndexList(from, to);
    emit layoutChanged();
}
