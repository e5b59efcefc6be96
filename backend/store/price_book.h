// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "host/contract/price_history.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

// What the prices of symbols were, minute by minute, for limits::priceDays days: one row of each symbol and
// day. The minute that is not over stands with the quotes (see QuoteBook). A price that is the one before is
// not kept again. Thread: that of the database, which must outlive the book.
class PriceBook {
public:
    explicit PriceBook(Database& database);

    // A minute that is over, and later than those before. Inside a transaction. False on failure, which the
    // database then holds.
    bool add(const CSymbolInfo& symbol, const MinutePrice& price);

    // Nothing where the days before do not know a price.
    std::optional<PriceSince> since(const CSymbolInfo& symbol, std::int64_t moment);
    std::vector<MinutePrice> between(const CSymbolInfo& symbol, std::int64_t from, std::int64_t to);

private:
    std::vector<MinutePrice> ofDay(const CSymbolInfo& symbol, std::int64_t day);
    std::optional<double> closeBefore(const CSymbolInfo& symbol, std::int64_t day);
    // The last price, in a minute that may not be over.
    std::optional<MinutePrice> latest(const CSymbolInfo& symbol);

    Statement one;
    Statement range;
    Statement extremes;
    Statement before;
    Statement present;
    Statement write;
    Statement drop;
};

}  // namespace wirepane
