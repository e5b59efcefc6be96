// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/data_table.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane::sample {

QStringView DataRow::cell(QLatin1StringView column) const {
    const qsizetype place = columns.indexOf(column);
    if (place >= 0)
        return cells[place];
    fail(u"the table has no column “%1”"_s.arg(column));
    return {};
}

void DataRow::fail(const QString& what) const {
    faults->append(u"%1, line %2: %3"_s.arg(file).arg(line).arg(what));
}

QString DataRow::text(QLatin1StringView column) const {
    const QStringView found = cell(column);
    if (found.isEmpty())
        fail(u"“%1” is empty"_s.arg(column));
    return found.toString();
}

int DataRow::number(QLatin1StringView column) const {
    bool isNumber = false;
    const int found = cell(column).toInt(&isNumber);
    if (isNumber && found >= 0)
        return found;
    fail(u"“%1” is no number"_s.arg(column));
    return 0;
}

bool DataRow::flag(QLatin1StringView column) const {
    static constexpr QLatin1StringView values[] = {"0"_L1, "1"_L1};
    return choice(column, values) == 1;
}

std::size_t DataRow::choice(QLatin1StringView column, std::span<const QLatin1StringView> names) const {
    const QStringView found = cell(column);
    const auto place = std::find(names.begin(), names.end(), found);
    if (place != names.end())
        return static_cast<std::size_t>(place - names.begin());
    fail(u"“%1” cannot be “%2”"_s.arg(column, found));
    return 0;
}

std::vector<DataRow> readTable(const QString& file, const QByteArray& content, QStringList& faults) {
    std::vector<DataRow> rows;
    DataRow row;
    row.file = file;
    row.faults = &faults;
    for (const QByteArray& line : content.split('\n')) {
        ++row.line;
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        row.cells = QString::fromUtf8(line).split(u'\t');
        if (row.columns.isEmpty())
            row.columns = row.cells;
        else if (row.cells.size() == row.columns.size())
            rows.push_back(row);
        else
            row.fail(u"%1 cells instead of %2"_s.arg(row.cells.size()).arg(row.columns.size()));
    }
    if (rows.empty())
        row.fail(u"the table has no rows"_s);
    return rows;
}

std::vector<DataRow> carriedTable(const QString& file, QStringList& faults) {
    QFile source(u":/sample_wire/"_s + file);
    return readTable(file, source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray(), faults);
}

}  // namespace wirepane::sample
