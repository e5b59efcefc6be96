// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/headline_query.h"

#include <vector>

namespace wirepane {

namespace {

class OneByOne final : public HeadlineQuerySet {
public:
    explicit OneByOne(std::vector<std::shared_ptr<const HeadlineQuery>> some) : queries(std::move(some)) {}

    bool findWanting(const CHeadline& headline, std::int32_t categoryId, const Told& told) const override {
        for (std::size_t i = 0; i < queries.size(); ++i) {
            if (queries[i] && queries[i]->wants(headline, categoryId) && told(i))
                return true;
        }
        return false;
    }

private:
    const std::vector<std::shared_ptr<const HeadlineQuery>> queries;
};

}  // namespace

HeadlineQuery::~HeadlineQuery() = default;

HeadlineQuerySet::~HeadlineQuerySet() = default;

HeadlineQueries::~HeadlineQueries() = default;

std::shared_ptr<const HeadlineQuerySet> HeadlineQueries::prepareQueries(std::span<const QString> queries) {
    std::vector<std::shared_ptr<const HeadlineQuery>> prepared;
    for (const QString& query : queries)
        prepared.push_back(prepareQuery(query));
    return std::make_shared<OneByOne>(std::move(prepared));
}

}  // namespace wirepane
