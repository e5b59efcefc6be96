// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/markets.h"

#include <QStringList>

#include <array>

namespace wirepane {

// The columns of tables that the importers read.
enum class Column { Market, Code, Name, EnglishName, Category, Service, Id, Colour, Last, Change, Volume };
constexpr std::size_t columnCount = 11;

// Where each column of a table stands, worked out from its header line.
class TableColumns {
public:
    explicit TableColumns(const QStringList& header);

    bool has(Column column) const { return index(column) >= 0; }
    // The field of a row without the blanks around it; empty where the row or the table has none.
    QString field(const QStringList& row, Column column) const;
    // The market of a list whose header belongs to one market; unknownMarket otherwise.
    unsigned char market() const { return listMarket; }

private:
    qsizetype index(Column column) const { return indexes.at(std::size_t(column)); }

    std::array<qsizetype, columnCount> indexes;
    unsigned char listMarket = unknownMarket;
};

}  // namespace wirepane
