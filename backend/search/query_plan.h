// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "host/contract/query/query_symbol.h"
#include "host/contract/query/search_query.h"
#include "host/contract/records.h"
#include "host/contract/search_choices.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace wirepane {

// What a query comes down to in one service of a store: what the index is asked, and which rows.
struct QueryPlan {
    enum class Kind {
        Nothing,
        Everything,
        Matches,  // of one of `matches`, each in the index's own language
        Topics,   // of one of `topics`
        Symbols,  // naming one of `symbols`
        Days,     // within `days`
        State,    // of `state`
        All,
        Any,
        Not
    };
    // A code in a market or in one that is not known.
    struct Symbol {
        std::optional<unsigned char> market;  // none: any
        QString code;
    };

    Kind kind = Kind::Nothing;
    QStringList matches;
    std::vector<std::int32_t> topics;
    std::vector<Symbol> symbols;
    Moments days;
    QueryState state = QueryState::Unread;
    std::vector<QueryPlan> parts;
};

// What symbol: means: the codes that news may name, and the names that may stand in it.
struct MeantSymbols {
    std::vector<QueryPlan::Symbol> coded;
    QStringList names;
};

// Plans queries. Thread: that of the database, which must outlive this.
class QueryPlanner {
public:
    explicit QueryPlanner(Database& database);

    // `scope` is where texts without a field are looked for. Nothing when the store cannot be read.
    std::optional<QueryPlan> plan(const QueryNode& query, unsigned char service, SearchScope scope,
                                  QDate today);

    // What the values of fields mean now; see failed().
    std::vector<std::int32_t> topicsNamed(const QString& value, unsigned char service);
    bool isNamed(unsigned char service, const QString& value);
    MeantSymbols symbolsMeant(const QString& value);
    // The store could not be read.
    bool failed() const { return hasFailed; }

private:
    struct Asked {
        unsigned char service;
        SearchScope scope;
        QDate today;
    };
    QueryPlan planned(const QueryNode& node, const Asked& asked);
    QueryPlan plannedParts(const QueryNode& node, const Asked& asked);
    QueryPlan plannedSymbol(const QString& value);
    QueryPlan plannedTopics(const QString& value, unsigned char service);
    QStringList namesOf(const QuerySymbol& symbol);
    MeantSymbols symbolsNamed(const QString& value);

    Statement topicNames;
    Statement serviceNames;
    Statement namesOfCodes;
    Statement allSymbols;
    bool hasFailed = false;
};

}  // namespace wirepane
