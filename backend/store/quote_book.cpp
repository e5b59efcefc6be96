// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/quote_book.h"

namespace wirepane {

QuoteBook::QuoteBook(Database& database)
    : one(database, "SELECT last, change, volume FROM quotes WHERE market = ? AND code = ?"),
      write(database,
            "REPLACE INTO quotes(market, code, last, change, volume, revision) "
            "VALUES(?, ?, ?, ?, ?, (SELECT coalesce(max(revision), 0) + 1 FROM quotes))"),
      newest(database, "SELECT coalesce(max(revision), 0) FROM quotes"),
      later(database,
            "SELECT market, code, last, change, volume, revision FROM quotes WHERE revision > ? "
            "ORDER BY revision") {}

bool QuoteBook::put(const QuoteItem& item, bool& changed) {
    const std::optional<CQuoteMemory> known = find({item.market, item.code});
    changed =
        !known || known->last != item.last || known->change != item.change || known->volume != item.volume;
    return !changed || Query(write, item.market, item.code, item.last, item.change, item.volume).run();
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
