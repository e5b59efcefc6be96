// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/search_hits.h"

#include "host/contract/bk_quote_interface.h"

namespace wirepane {

HitFinder::~HitFinder() = default;
SearchHits::~SearchHits() = default;

std::shared_ptr<const HitFinder> preparedHits(BKQuoteInterface& backEnd, const CSearch& condition) {
    auto* hits = dynamic_cast<SearchHits*>(&backEnd);
    return hits != nullptr && !condition.keywords.empty() ? hits->prepareHits(condition) : nullptr;
}

}  // namespace wirepane
