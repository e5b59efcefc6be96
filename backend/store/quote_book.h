// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/news_item.h"
#include "backend/store/price_book.h"
#include "host/contract/records.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

// The quotes of a store: one of each symbol, the one that came last. Each change takes the next revision, so
// that what came after a moment is found, whoever wrote it. With the first change in a later minute the price
// that was the last of its minute goes to the prices that were. Thread: that of the database, which must
// outlive the book.
class QuoteBook {
public:
    explicit QuoteBook(Database& database);

    // Inside a transaction. `now` is when it came. `changed` tells whether the symbol had another quote, or
    // none. False on failure, which the database then holds.
    bool put(const QuoteItem& item, std::int64_t now, bool& changed);

    std::optional<CQuoteMemory> find(const CSymbolInfo& symbol);
    // The revision of the last change; 0: none yet.
    std::int64_t lastRevision();
    // The quotes that changed after `revision`, in the order of their last change; `revision` moves to the
    // last of them.
    std::vector<CQuoteMemory> after(std::int64_t& revision);

private:
    PriceBook prices;
    Statement one;
    Statement write;
    Statement newest;
    Statement later;
};

}  // namespace wirepane
