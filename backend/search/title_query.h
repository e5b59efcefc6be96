// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/title_query_set.h"

namespace wirepane {

// A query that is tried on headlines: a set of one.
class TitleQuery final : public HeadlineQuery {
public:
    using RelatedSymbols = TitleQuerySet::RelatedSymbols;

    // Null: the query has a fault, or the store cannot be read. The planner is not needed any more then.
    static std::shared_ptr<const TitleQuery> make(const QString& query, QueryPlanner& planner,
                                                  RelatedSymbols related, QueryUse use = QueryUse::Headlines);

    bool wants(const CHeadline& headline, std::int32_t categoryId) const override;

private:
    explicit TitleQuery(std::shared_ptr<const TitleQuerySet> ofOne) : set(std::move(ofOne)) {}

    const std::shared_ptr<const TitleQuerySet> set;
};

}  // namespace wirepane
