// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QString>

#include <cstdint>
#include <memory>

struct CHeadline;

namespace wirepane {

// A query (QueryUse::Headlines), made ready to be tried on many headlines.
class WIREPANE_CONTRACT_EXPORT HeadlineQuery {
public:
    HeadlineQuery() = default;
    HeadlineQuery(const HeadlineQuery&) = delete;
    HeadlineQuery& operator=(const HeadlineQuery&) = delete;
    virtual ~HeadlineQuery();

    // Whether a search for it in titles would find the headline, by its title, its service, its topic and its
    // related symbols alone.
    virtual bool wants(const CHeadline& headline, std::int32_t categoryId) const = 0;
};

// Optional for back ends, beside BKQuoteInterface: whoever searches by queries says of a headline that is
// pushed, or stands in a table, whether a query wants it. Interface thread.
class WIREPANE_CONTRACT_EXPORT HeadlineQueries {
public:
    virtual ~HeadlineQueries();

    // Names of topics, services and symbols mean what they mean now. Null: the query has a fault, or what its
    // names mean cannot be read. The back end outlives what it returns.
    virtual std::shared_ptr<const HeadlineQuery> prepareQuery(const QString& query) = 0;
};

}  // namespace wirepane
