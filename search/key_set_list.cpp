// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/key_set_list.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>

namespace wirepane {

KeySetList::KeySetList(std::span<const ReportColumn> columns, QWidget* parent) : ReportList(columns, parent) {
    const int boxWidth = 2 * style()->pixelMetric(QStyle::PM_IndicatorWidth);
    setColumnWidth(0, columnWidth(0) + boxWidth);
    connect(this, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* changed) {
        if (changed->column() != 0)
            return;
        clickTicked = true;
        emit ticksChanged();
    });
    connect(this, &QTableWidget::cellClicked, this, [this](int row) {
        if (!clickTicked)
            emit rowChosen(row);
    });
    connect(this, &QTableWidget::cellDoubleClicked, this, [this](int row) {
        if (!clickTicked)
            QMetaObject::invokeMethod(
                this, [this, row] { emit rowDoubleClicked(row); }, Qt::QueuedConnection);
    });
    connect(this, &QTableWidget::itemSelectionChanged, this, [this] {
        if (selectionModel()->hasSelection())
            emit rowChosen(currentRow());
        else
            emit rowLeft();
    });
}

void KeySetList::setKeySet(int row, const QStringList& texts) {
    const QSignalBlocker quiet(this);
    const bool added = row == rowCount();
    setRow(row, texts);
    if (added)
        item(row, 0)->setCheckState(Qt::Unchecked);
}

void KeySetList::tick(int row, bool ticked) {
    item(row, 0)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

bool KeySetList::isTicked(int row) const {
    return item(row, 0)->checkState() == Qt::Checked;
}

std::vector<int> KeySetList::tickedRows() const {
    std::vector<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (isTicked(row))
            rows.push_back(row);
    }
    return rows;
}

void KeySetList::mark(int row) {
    const QSignalBlocker quiet(this);
    clearSelection();
    if (row < 0)
        return;
    selectRow(row);
    scrollToItem(item(row, 0));
}

// The mouse selects by being clicked beside a check box: rowChosen is answered with mark.
QItemSelectionModel::SelectionFlags KeySetList::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
    const bool byMouse = dynamic_cast<const QMouseEvent*>(event) != nullptr;
    return byMouse ? QItemSelectionModel::NoUpdate : ReportList::selectionCommand(index, event);
}

void KeySetList::mousePressEvent(QMouseEvent* event) {
    clickTicked = false;
    ReportList::mousePressEvent(event);
    // A press on a check box alone would leave the keyboard where it was.
    if (const QModelIndex pressed = indexAt(event->position().toPoint()); pressed.isValid())
        selectionModel()->setCurrentIndex(pressed, QItemSelectionModel::NoUpdate);
}

void KeySetList::mouseReleaseEvent(QMouseEvent* event) {
    ReportList::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton)
        emit rowLeft();
}

void KeySetList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier && currentRow() >= 0) {
        tick(currentRow(), !isTicked(currentRow()));
        return;
    }
    if (event->key() == Qt::Key_Escape && selectionModel()->hasSelection()) {
        emit rowLeft();
        return;
    }
    ReportList::keyPressEvent(event);
    // The arrow that has nowhere to go takes the row where it is.
    const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (arrow && currentRow() >= 0 && !selectionModel()->hasSelection())
        emit rowChosen(currentRow());
}

}  // namespace wirepane
