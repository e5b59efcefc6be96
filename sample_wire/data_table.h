// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <span>
#include <vector>

namespace wirepane::sample {

// One row of a data file. A cell that is not as asked for is a fault, which names file and line, and some
// harmless value stands in for it.
class DataRow {
public:
    QString text(QLatin1StringView column) const;  // not empty
    int number(QLatin1StringView column) const;    // whole, not negative
    bool flag(QLatin1StringView column) const;     // 0 or 1
    // The place of the cell's text among the names.
    std::size_t choice(QLatin1StringView column, std::span<const QLatin1StringView> names) const;

    void fail(const QString& what) const;

private:
    friend std::vector<DataRow> readTable(const QString& file, const QByteArray& content,
                                          QStringList& faults);

    QStringView cell(QLatin1StringView column) const;

    QString file;
    int line = 0;
    QStringList cells;
    QStringList columns;
    QStringList* faults = nullptr;
};

// The rows of a data file: UTF-8, one row a line, cells with a tab between them. Lines that start with "#"
// and empty ones are passed over; the first other line names the columns. A row has a cell for every column,
// and there is at least one, or that is a fault. Faults ("words.tsv, line 12: ...") are added to the list,
// which must outlive the rows.
std::vector<DataRow> readTable(const QString& file, const QByteArray& content, QStringList& faults);

// The rows of a file that the program carries.
std::vector<DataRow> carriedTable(const QString& file, QStringList& faults);

}  // namespace wirepane::sample
