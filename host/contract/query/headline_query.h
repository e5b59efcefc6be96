// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>

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

// Many of them, tried together.
class WIREPANE_CONTRACT_EXPORT HeadlineQuerySet {
public:
    HeadlineQuerySet() = default;
    HeadlineQuerySet(const HeadlineQuerySet&) = delete;
    HeadlineQuerySet& operator=(const HeadlineQuerySet&) = delete;
    virtual ~HeadlineQuerySet();

    // Calls `told` with the number of each query that wants the headline, once each, in no order, until it
    // returns true. Whether it did.
    using Told = std::function<bool(std::size_t query)>;
    virtual bool findWanting(const CHeadline& headline, std::int32_t categoryId, const Told& told) const = 0;
};

// Optional for back ends, beside BKQuoteInterface: whoever searches by queries says of a headline that is
// pushed, or stands in a table, whether a query wants it. Interface thread.
class WIREPANE_CONTRACT_EXPORT HeadlineQueries {
public:
    virtual ~HeadlineQueries();

    // Names of topics, services and symbols mean what they mean now. Null: the query has a fault, or what its
    // names mean cannot be read. The back end outlives what it returns.
    virtual std::shared_ptr<const HeadlineQuery> prepareQuery(const QString& query) = 0;

    // The same for many, numbered from 0. Never null: a query that would be null alone wants nothing. Tries
    // them one by one, unless the back end knows better.
    virtual std::shared_ptr<const HeadlineQuerySet> prepareQueries(std::span<const QString> queries);
};

}  // namespace wirepane
