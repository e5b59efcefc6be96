// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace wirepane {

// The columns of a quote list, from left to right.
enum class QuoteColumn { Code, Name, Last, Change, Percent, Volume };
inline constexpr int quoteColumns = 6;

struct QuoteRow {
    CSymbolInfo symbol;
    QString name;                       // empty: not known
    std::optional<CQuoteMemory> quote;  // nothing: none has come yet
};

// The change in percent of the previous close; nothing where there is no quote or the close was nothing.
WIREPANE_HOST_EXPORT std::optional<double> percentOf(const QuoteRow& row);
// 1: risen, -1: fallen, 0: neither, or no quote.
WIREPANE_HOST_EXPORT int directionOf(const QuoteRow& row);
// What stands in a cell. Prices with two to four decimals, as many as price and change need; changes with
// their sign; "--" for a number that is not known.
WIREPANE_HOST_EXPORT QString textOf(const QuoteRow& row, QuoteColumn column);

// The rows of a quote list and their order, without anything on screen. Rows count from 0. An update costs
// the same in a list of any length: it moves no row. Where the order depends on what it changed, isStale()
// says so, and resort() puts the rows in order.
class WIREPANE_HOST_EXPORT QuoteTable {
public:
    // The symbols in their own order; one that stands twice counts once. What is known of those that stay is
    // kept, and so is the sorting.
    void setSymbols(const std::vector<CSymbolInfo>& symbols);
    // Out of range: ignored.
    void setName(int row, const QString& name);

    int size() const { return static_cast<int>(order.size()); }
    const QuoteRow& at(int row) const { return items[static_cast<std::size_t>(order[row])]; }
    // -1 for a symbol that is not listed.
    int rowOf(const CSymbolInfo& symbol) const;
    std::vector<CSymbolInfo> symbols() const;

    // The row that the quote changed, and whether it is the first one of the row. Nothing for a symbol that
    // is not listed, and for a quote that is the known one.
    struct Update {
        int row = 0;
        bool first = false;
    };
    std::optional<Update> update(const CQuoteMemory& quote);

    // Sorted by a column: stable over the symbols' own order, rows without a value last. Nothing: in the
    // symbols' own order.
    struct Sorting {
        QuoteColumn column = QuoteColumn::Code;
        bool descending = false;
        bool operator==(const Sorting&) const = default;
    };
    void sortBy(const std::optional<Sorting>& wanted);
    const std::optional<Sorting>& sorting() const { return chosen; }
    bool isStale() const { return stale; }
    void resort();

private:
    std::vector<QuoteRow> items;  // in the symbols' own order
    QHash<CSymbolInfo, int> itemOf;
    std::vector<int> order;   // by row: the item
    std::vector<int> places;  // by item: the row
    std::optional<Sorting> chosen;
    bool stale = false;
};

}  // namespace wirepane
