// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/quote_table.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString unknown = QStringLiteral("--");

// Digits are grouped alike in all languages.
QString numberText(double number, int decimals) {
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(number, 'f', decimals);
}

QString signedText(double number, int decimals) {
    const QString text = numberText(number, decimals);
    return number > 0 ? u'+' + text : text;
}

bool hasDecimals(double number, int decimals) {
    const double scaled = number * std::pow(10.0, decimals);
    // What a sum of prices is off by at most.
    return std::abs(scaled - std::round(scaled)) < std::max(1e-6, 1e-12 * std::abs(scaled));
}

int decimalsOf(const CQuoteMemory& quote) {
    constexpr int least = 2;
    constexpr int most = 4;
    int decimals = least;
    while (decimals < most && !(hasDecimals(quote.last, decimals) && hasDecimals(quote.change, decimals)))
        ++decimals;
    return decimals;
}

std::optional<double> valueOf(const QuoteRow& row, QuoteColumn column) {
    if (column == QuoteColumn::Percent)
        return percentOf(row);
    if (!row.quote)
        return std::nullopt;
    if (column == QuoteColumn::Last)
        return row.quote->last;
    return column == QuoteColumn::Change ? row.quote->change : static_cast<double>(row.quote->volume);
}

bool isText(QuoteColumn column) {
    return column == QuoteColumn::Code || column == QuoteColumn::Name;
}

// Whether `a` comes before `b`; what has no value comes last either way.
bool isBefore(const QuoteRow& a, const QuoteRow& b, const QuoteTable::Sorting& sorting) {
    if (isText(sorting.column)) {
        const QString& left = sorting.column == QuoteColumn::Code ? a.symbol.code : a.name;
        const QString& right = sorting.column == QuoteColumn::Code ? b.symbol.code : b.name;
        if (left.isEmpty() || right.isEmpty())
            return !left.isEmpty() && right.isEmpty();
        const int compared = QString::localeAwareCompare(left, right);
        return sorting.descending ? compared > 0 : compared < 0;
    }
    const auto left = valueOf(a, sorting.column);
    const auto right = valueOf(b, sorting.column);
    if (!left || !right)
        return left && !right;
    return sorting.descending ? *left > *right : *left < *right;
}

}  // namespace

std::optional<double> percentOf(const QuoteRow& row) {
    if (!row.quote || !(row.quote->last - row.quote->change > 0))
        return std::nullopt;
    return row.quote->change / (row.quote->last - row.quote->change) * 100;
}

int directionOf(const QuoteRow& row) {
    if (!row.quote || row.quote->change == 0)
        return 0;
    return row.quote->change > 0 ? 1 : -1;
}

QString textOf(const QuoteRow& row, QuoteColumn column) {
    if (column == QuoteColumn::Code)
        return row.symbol.code;
    if (column == QuoteColumn::Name)
        return row.name;
    if (column == QuoteColumn::Percent) {
        const auto percent = percentOf(row);
        return percent ? signedText(*percent, 2) + u'%' : unknown;
    }
    if (!row.quote)
        return unknown;
    if (column == QuoteColumn::Last)
        return numberText(row.quote->last, decimalsOf(*row.quote));
    if (column == QuoteColumn::Change)
        return signedText(row.quote->change, decimalsOf(*row.quote));
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(qlonglong(row.quote->volume));
}

void QuoteTable::setSymbols(const std::vector<CSymbolInfo>& symbols) {
    std::vector<QuoteRow> before = std::exchange(items, {});
    const QHash<CSymbolInfo, int> known = std::exchange(itemOf, {});
    for (const CSymbolInfo& symbol : symbols) {
        if (itemOf.contains(symbol))
            continue;
        itemOf.insert(symbol, static_cast<int>(items.size()));
        const auto kept = known.constFind(symbol);
        items.push_back(kept != known.constEnd() ? std::move(before[static_cast<std::size_t>(*kept)])
                                                 : QuoteRow{symbol, {}, {}});
    }
    resort();
}

void QuoteTable::setName(int row, const QString& name) {
    if (row < 0 || row >= size())
        return;
    items[static_cast<std::size_t>(order[row])].name = name;
    stale = stale || (chosen && chosen->column == QuoteColumn::Name);
}

int QuoteTable::rowOf(const CSymbolInfo& symbol) const {
    const auto item = itemOf.constFind(symbol);
    return item != itemOf.constEnd() ? places[static_cast<std::size_t>(*item)] : -1;
}

std::vector<CSymbolInfo> QuoteTable::symbols() const {
    std::vector<CSymbolInfo> all;
    for (const QuoteRow& item : items)
        all.push_back(item.symbol);
    return all;
}

std::optional<QuoteTable::Update> QuoteTable::update(const CQuoteMemory& quote) {
    const int row = rowOf(quote.symbol);
    if (row < 0)
        return std::nullopt;
    auto& known = items[static_cast<std::size_t>(order[row])].quote;
    if (known && known->last == quote.last && known->change == quote.change && known->volume == quote.volume)
        return std::nullopt;
    const Update update{row, !known};
    known = quote;
    if (chosen && !isText(chosen->column))
        stale = true;
    return update;
}

void QuoteTable::sortBy(const std::optional<Sorting>& wanted) {
    chosen = wanted;
    resort();
}

void QuoteTable::resort() {
    order.resize(items.size());
    std::iota(order.begin(), order.end(), 0);
    if (chosen) {
        std::stable_sort(order.begin(), order.end(), [this](int a, int b) {
            return isBefore(items[static_cast<std::size_t>(a)], items[static_cast<std::size_t>(b)], *chosen);
        });
    }
    places.resize(items.size());
    for (std::size_t row = 0; row < order.size(); ++row)
        places[static_cast<std::size_t>(order[row])] = static_cast<int>(row);
    stale = false;
}

}  // namespace wirepane
