// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/quote_book.h"

#include "backend/store/packed_prices.h"

#include <algorithm>

namespace wirepane {

QuoteBook::QuoteBook(Database& database)
    : prices(database),
      one(database, "SELECT last, change, volume, moment FROM quotes WHERE market = ? AND code = ?"),
      write(database,
            "REPLACE INTO quotes(market, code, last, change, volume, moment, revision) "
            "VALUES(?, ?, ?, ?, ?, ?, (SELECT coalesce(max(revision), 0) + 1 FROM quotes))"),
      newest(database, "SELECT coalesce(max(revision), 0) FROM quotes"),
      later(database,
            "SELECT market, code, last, change, volume, revision FROM quotes WHERE revision > ? "
            "ORDER BY revision") {}

bool QuoteBook::put(const QuoteItem& item, std::int64_t now, bool& changed) {
    const CSymbolInfo symbol{item.market, item.code};
    MinutePrice last;
    {
        Query query(one, symbol.market, symbol.code);
        const bool isKnown = query.next();
        changed = !isKnown || query.real(0) != item.last || query.real(1) != item.change ||
                  query.number(2) != item.volume;
        if (isKnown)
            last = {query.number(3), query.real(0)};
    }
    if (!changed)
        return true;
    // A clock that is put back stays in the minute that it had come to.
    const std::int64_t minute = std::max(last.minute, now - now % secondsOfMinute);
    const bool isOver = last.minute > 0 && last.minute < minute && last.price > 0;
    return (!isOver || prices.add(symbol, last)) &&
           Query(write, item.market, item.code, item.last, item.change, item.volume, minute).run();
}

std::optional<CQuoteMemory> QuoteBook::find(const CSymbolInfo& symbol) {
    Query query(one, symbol.market, symbol.code);
    if (!query.next())
        return std::nullopt;
    return CQuoteMemory{symbol, query.real(0), query.real(1), query.number(2)};
}

std::int64_t QuoteBook::lastRevision() {
    Query query(newest);
    return query.next() ? query.number(0) : 0;
}

std::vector<CQuoteMemory> QuoteBook::after(std::int64_t& revision) {
    std::vector<CQuoteMemory> quotes;
    for (Query query(later, revision); query.next();) {
        quotes.push_back({{static_cast<unsigned char>(query.number(0)), query.text(1)},
                          query.real(2),
                          query.real(3),
                          query.number(4)});
        revision = query.number(5);
    }
    return quotes;
}

}  // namespace wirepane
