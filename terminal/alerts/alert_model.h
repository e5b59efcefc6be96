// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_entry.h"

#include <QAbstractTableModel>

#include <vector>

namespace wirepane {

// The list of alerts, newest first; what was not told is weak.
class AlertModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Time, Rule, Title, Outcome, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void show(std::vector<AlertEntry> newestFirst);
    const AlertEntry& at(int row) const { return entries[static_cast<std::size_t>(row)]; }
    // The row of an entry by its number; -1: it is not there.
    int rowOf(std::int64_t number) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<AlertEntry> entries;
};

}  // namespace wirepane
