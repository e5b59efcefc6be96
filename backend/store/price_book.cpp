// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/price_book.h"

#include "backend/store/limits.h"
#include "backend/store/packed_prices.h"

#include <algorithm>
#include <cmath>

namespace wirepane {

namespace {

// So many days a market may be closed.
constexpr std::int64_t longestPause = 14;

}  // namespace

PriceBook::PriceBook(Database& database)
    : one(database, "SELECT packed FROM day_prices WHERE market = ? AND code = ? AND day = ?"),
      range(database,
            "SELECT day, packed FROM day_prices WHERE market = ? AND code = ? "
            "AND day BETWEEN ? AND ? ORDER BY day"),
      extremes(database,
               "SELECT min(low), max(high) FROM day_prices INDEXED BY day_price_ranges "
               "WHERE market = ? AND code = ? AND day BETWEEN ? AND ?"),
      before(database,
             "SELECT day, packed FROM day_prices WHERE market = ? AND code = ? AND day BETWEEN ? AND ? "
             "ORDER BY day DESC LIMIT 1"),
      present(database, "SELECT last, moment FROM quotes WHERE market = ? AND code = ? AND moment > 0"),
      write(database,
            "REPLACE INTO day_prices(market, code, day, low, high, packed) VALUES(?, ?, ?, ?, ?, ?)"),
      // Two for each that is added: so they leave without a run of their own.
      drop(database,
           "DELETE FROM day_prices WHERE (market, code, day) IN "
           "(SELECT market, code, day FROM day_prices WHERE day < ? ORDER BY day LIMIT 2)") {}

bool PriceBook::add(const CSymbolInfo& symbol, const MinutePrice& price) {
    const std::int64_t day = priceDayOf(price.minute);
    std::vector<MinutePrice> prices = ofDay(symbol, day);
    if (prices.empty() && !Query(drop, day - limits::priceDays).run())
        return false;
    if (!prices.empty() && (prices.back().price == price.price || prices.back().minute >= price.minute))
        return true;
    prices.push_back(price);
    const auto [low, high] = std::ranges::minmax_element(prices, {}, &MinutePrice::price);
    return Query(write, symbol.market, symbol.code, day, low->price, high->price, Blob{packedPrices(prices)})
        .run();
}

std::vector<MinutePrice> PriceBook::ofDay(const CSymbolInfo& symbol, std::int64_t day) {
    Query query(one, symbol.market, symbol.code, day);
    if (!query.next())
        return {};
    return unpackedPrices(query.blob(0), day).value_or(std::vector<MinutePrice>());
}

std::optional<double> PriceBook::closeBefore(const CSymbolInfo& symbol, std::int64_t day) {
    Query query(before, symbol.market, symbol.code, day - longestPause, day - 1);
    if (!query.next())
        return std::nullopt;
    const auto prices = unpackedPrices(query.blob(1), query.number(0));
    return prices && !prices->empty() ? std::optional(prices->back().price) : std::nullopt;
}

std::optional<MinutePrice> PriceBook::latest(const CSymbolInfo& symbol) {
    Query query(present, symbol.market, symbol.code);
    if (!query.next() || query.real(0) <= 0)
        return std::nullopt;
    return MinutePrice{query.number(1), query.real(0)};
}

std::optional<PriceSince> PriceBook::since(const CSymbolInfo& symbol, std::int64_t moment) {
    const std::optional<MinutePrice> last = latest(symbol);
    if (!last)
        return std::nullopt;
    const std::int64_t day = priceDayOf(moment);
    std::optional<double> then;
    std::vector<double> later{last->price};
    for (const MinutePrice& price : ofDay(symbol, day)) {
        if (price.minute + secondsOfMinute <= moment)
            then = price.price;
        else
            later.push_back(price.price);
    }
    // Only where nothing has come since: what the last quote was before its minute is not known any more.
    if (last->minute + secondsOfMinute <= moment)
        then = last->price;
    if (!then)
        then = closeBefore(symbol, day);
    if (!then)
        return std::nullopt;
    Query query(extremes, symbol.market, symbol.code, day + 1, priceDayOf(last->minute));
    if (query.next() && !query.isNull(0))
        later.insert(later.end(), {query.real(0), query.real(1)});
    const auto farthest =
        std::ranges::max_element(later, {}, [&](double price) { return std::abs(price - *then); });
    return PriceSince{*then, last->price, *farthest};
}

std::vector<MinutePrice> PriceBook::between(const CSymbolInfo& symbol, std::int64_t from, std::int64_t to) {
    std::vector<MinutePrice> prices;
    for (Query query(range, symbol.market, symbol.code, priceDayOf(from), priceDayOf(to - 1));
         query.next();) {
        for (const MinutePrice& price :
             unpackedPrices(query.blob(1), query.number(0)).value_or(std::vector<MinutePrice>())) {
            if (price.minute >= from && price.minute < to)
                prices.push_back(price);
        }
    }
    const std::optional<MinutePrice> last = latest(symbol);
    if (last && last->minute >= from && last->minute < to)
        prices.push_back(*last);
    return prices;
}

}  // namespace wirepane
