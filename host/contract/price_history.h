// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

// The last price of a symbol in a minute.
struct MinutePrice {
    std::int64_t minute = 0;  // its beginning, in seconds since 1970, UTC
    double price = 0;

    bool operator==(const MinutePrice&) const = default;
};

// What the price of a symbol has done since a moment.
struct PriceSince {
    double then = 0;      // of the last minute that had ended at the moment
    double now = 0;       // the last one that is known
    double farthest = 0;  // of those since, the one that was farthest from `then`

    double change() const { return now - then; }
    double largestMove() const { return farthest - then; }
    bool operator==(const PriceSince&) const = default;
};

// Optional for back ends, beside BKQuoteInterface: what the prices of symbols were. Interface thread.
class WIREPANE_CONTRACT_EXPORT PriceHistory {
public:
    virtual ~PriceHistory();

    // What the price of the first related symbol has done since the headline. Asked for each row that is
    // drawn: answered from memory or an index. Nothing where no price of the days before is known.
    virtual std::optional<PriceSince> priceSince(const HeadlineKey& key) = 0;
    // The prices of minutes that begin in [from, to), oldest first. A minute without a price had that of the
    // one before.
    virtual std::vector<MinutePrice> pricesOf(const CSymbolInfo& symbol, std::int64_t from,
                                              std::int64_t to) = 0;
    // Another number after any price has changed.
    virtual std::int64_t priceChanges() const = 0;
};

}  // namespace wirepane
