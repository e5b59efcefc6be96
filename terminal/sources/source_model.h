// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/sources/ready_made.h"
#include "terminal/sources/source_texts.h"

#include <QAbstractTableModel>

#include <functional>
#include <map>

namespace wirepane {

// The rows of the Sources page: the user's sources in their order, then those that are ready made and not
// taken yet. Ticking is told, and shown when it has been done.
class SourceModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { On, Source, State, Last, Next, Today, Delay, ColumnCount };

    // How the terminal stands to a source, and what it has brought.
    struct Life {
        std::optional<SourceState> state;
        std::optional<SourceDelays> delays;
    };
    using Lives = std::function<std::map<QString, Life>()>;  // by name

    SourceModel(Lives lives, QObject* parent);

    void show(const std::vector<ListedSource>& sources);
    // What time and the terminal's state have changed.
    void refresh();
    // Texts in the language in force.
    void retranslate();

    // Of this row; null: it is none of the user's, or of those that are ready made.
    const ListedSource* listed(int row) const;
    const ReadyMadeSource* readyMade(int row) const;
    int rowOfName(const QString& name) const;
    const SourceRow& shown(int row) const { return rows.at(std::size_t(row)); }
    int countOn() const;
    int countFaulty() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    void ticked(int row, bool on);

private:
    std::vector<SourceRow> madeRows() const;

    Lives livesOf;
    std::vector<ListedSource> sources;
    std::vector<ReadyMadeSource> ready;
    std::vector<SourceRow> rows;
};

}  // namespace wirepane
