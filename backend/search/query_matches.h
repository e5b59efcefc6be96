// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/id_set.h"
#include "backend/search/query_plan.h"

#include <atomic>
#include <functional>
#include <map>

namespace wirepane {

// What a query matches in one service.
struct QueryMatch {
    IdSet ids;              // of other services, too
    bool isAllBut = false;  // all but these
    Moments days;           // and dated within them
};

// Carries plans of queries out. What the index has answered is kept, because it is the same for every
// service. Thread: that of the database, which must outlive this.
class QueryMatches {
public:
    // Adds what a query of the index matches; false on failure.
    using AskIndex = std::function<bool(IdSet& ids, const QString& match)>;

    QueryMatches(Database& database, AskIndex index);

    // Nothing when the store cannot be read or `isStopped` says so.
    std::optional<QueryMatch> find(const QueryPlan& plan, unsigned char service,
                                   const std::function<bool()>& isStopped);
    // The store has changed, or another condition is looked for.
    void forget() { known.clear(); }

private:
    struct Ids {
        IdSet ids;
        bool isAllBut = false;

        void keepCommon(const Ids& other);
    };
    std::optional<Ids> idsOf(const QueryPlan& plan);
    std::optional<Ids> idsOfParts(const QueryPlan& plan);
    std::optional<Ids> matchedBy(const QStringList& matches);
    bool addNamed(IdSet& ids, const QueryPlan::Symbol& symbol);
    bool addRows(IdSet& ids, Query& query);
    Statement& statementFor(QueryState state);

    AskIndex ask;
    Statement ofTopic;
    Statement ofDays;
    Statement naming;
    Statement namingAnywhere;
    Statement unread;
    Statement hasRead;
    Statement starred;
    Statement withdrawn;
    std::map<QStringList, IdSet> known;
    unsigned char asked = 0;  // service
    std::function<bool()> stopped;
};

}  // namespace wirepane
