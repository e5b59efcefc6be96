// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/title_query.h"

namespace wirepane {

std::shared_ptr<const TitleQuery> TitleQuery::make(const QString& query, QueryPlanner& planner,
                                                   RelatedSymbols related, QueryUse use) {
    auto set = TitleQuerySet::make({&query, 1}, planner, std::move(related), use);
    if (set->isEmpty())
        return nullptr;
    return std::shared_ptr<const TitleQuery>(new TitleQuery(std::move(set)));
}

bool TitleQuery::wants(const CHeadline& headline, std::int32_t categoryId) const {
    return set->findWanting(headline, categoryId, [](std::size_t) { return true; });
}

}  // namespace wirepane
