// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/price_book.h"
#include "host/contract/records.h"

#include <QHash>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace wirepane {

// What prices have done since headlines, remembered until a quote of their symbol comes: rows ask for it each
// time that they are drawn. Interface thread.
class PriceDesk {
public:
    // The symbol that a headline is about; nothing: it names none, or is not there.
    using MainSymbol = std::function<std::optional<CSymbolInfo>(const HeadlineKey&)>;

    PriceDesk(Database& database, MainSymbol mainSymbol) : book(database), symbolOf(std::move(mainSymbol)) {}

    const std::optional<PriceSince>& since(const HeadlineKey& key);
    std::vector<MinutePrice> between(const CSymbolInfo& symbol, std::int64_t from, std::int64_t to) {
        return book.between(symbol, from, to);
    }
    std::int64_t changes() const { return changeCount; }

    void noteQuote(const CSymbolInfo& symbol) { changed.insert(symbol, ++changeCount); }
    void forget(const HeadlineKey& key) { known.remove({key}); }
    void forgetAll() { known.clear(); }

private:
    struct Key {
        HeadlineKey headline;

        bool operator==(const Key&) const = default;
        friend std::size_t qHash(const Key& key, std::size_t seed) {
            return qHashMulti(seed, key.headline.time, key.headline.sequence, key.headline.service);
        }
    };
    struct Answer {
        std::optional<CSymbolInfo> symbol;
        std::int64_t asOf = -1;  // of the changes
        std::optional<PriceSince> since;
    };

    PriceBook book;
    MainSymbol symbolOf;
    QHash<Key, Answer> known;
    QHash<CSymbolInfo, std::int64_t> changed;  // when the last quote of a symbol came
    std::int64_t changeCount = 0;
};

}  // namespace wirepane
