// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/search/query_plan.h"
#include "host/contract/records.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace wirepane {

// Tries queries on the titles of the newest news, without the index: what begins with three letters may be a
// large part of all words, which the index would have to go through. Thread: that of the database, which must
// outlive this.
class NewestTitles {
public:
    explicit NewestTitles(Database& database);

    // Of some thousand titles of all services together that are no later than a moment, those that a query
    // wants that may end with a word cut short; newest first in each service. None of a query that titles
    // cannot answer, or when `stop` became true meanwhile.
    std::vector<CHeadlineTable> find(const std::vector<unsigned char>& services, const QString& query,
                                     std::int64_t latest, const std::atomic<bool>& stop);

private:
    std::vector<CSymbolInfo> symbolsOf(const CHeadline& headline);

    QueryPlanner planner;
    Statement newest;
    Statement named;
};

}  // namespace wirepane
