// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/query_matches.h"

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

using Kind = QueryPlan::Kind;

constexpr int stopAskedEvery = 256;    // rows
constexpr std::size_t mostKnown = 16;  // sets; one of ten million ids takes 1.2 MB

}  // namespace

// Neither set is made for all the ids that there are.
void QueryMatches::Ids::keepCommon(const Ids& other) {
    if (!isAllBut && !other.isAllBut) {
        ids.keepCommon(other.ids);
    } else if (!isAllBut) {
        ids.remove(other.ids);
    } else if (other.isAllBut) {
        ids.add(other.ids);
    } else {
        IdSet common = other.ids;
        common.remove(ids);
        ids = std::move(common);
        isAllBut = false;
    }
}

QueryMatches::QueryMatches(Database& database, AskIndex index)
    : ask(std::move(index)),
      ofTopic(database, "SELECT id FROM headlines WHERE service = ? AND category = ?"),
      ofDays(database, "SELECT id FROM headlines WHERE service = ? AND time BETWEEN ? AND ?"),
      naming(database,
             "SELECT headline FROM related_symbols WHERE service = ? AND market IN (?, 0) AND code = ?"),
      // The index goes by market before the code: each market that the service has is looked into.
      namingAnywhere(database,
                     "WITH RECURSIVE markets(market) AS ("
                     "SELECT min(market) FROM related_symbols WHERE service = ?1 UNION ALL "
                     "SELECT (SELECT min(market) FROM related_symbols WHERE service = ?1 AND market > "
                     "markets.market) FROM markets WHERE markets.market IS NOT NULL) "
                     "SELECT headline FROM markets CROSS JOIN related_symbols WHERE service = ?1 AND "
                     "related_symbols.market = markets.market AND code = ?2"),
      // As MarkBook reads marks.
      unread(database,
             "SELECT id FROM headlines WHERE service = ?1 AND time > (SELECT moment FROM marks_begin) AND "
             "NOT EXISTS(SELECT 1 FROM marks WHERE headline = id AND state > 0) UNION "
             "SELECT id FROM marks CROSS JOIN headlines ON id = headline WHERE state = 0 AND service = ?1"),
      hasRead(database,
              "SELECT id FROM marks CROSS JOIN headlines ON id = headline WHERE state = 2 AND service = ?"),
      starred(database,
              "SELECT id FROM marks CROSS JOIN headlines ON id = headline WHERE starred AND service = ?"),
      withdrawn(database,
                "SELECT id FROM withdrawals CROSS JOIN headlines ON id = headline WHERE service = ?") {}

Statement& QueryMatches::statementFor(QueryState state) {
    switch (state) {
        case QueryState::Unread:
            return unread;
        case QueryState::Read:
            return hasRead;
        case QueryState::Starred:
            return starred;
        case QueryState::Withdrawn:
            break;
    }
    return withdrawn;
}

std::optional<QueryMatch> QueryMatches::find(const QueryPlan& plan, unsigned char service,
                                             const std::function<bool()>& isStopped) {
    asked = service;
    stopped = isStopped;
    // Days that all of it must lie within need no set: the keys that are found have their times.
    QueryMatch match;
    QueryPlan rest = plan;
    const auto narrow = [&match](const QueryPlan& part) {
        if (part.kind != Kind::Days)
            return false;
        match.days.first = std::max(match.days.first, part.days.first);
        match.days.last = std::min(match.days.last, part.days.last);
        return true;
    };
    if (narrow(rest))
        rest.kind = Kind::Everything;
    else if (rest.kind == Kind::All)
        std::erase_if(rest.parts, narrow);
    std::optional<Ids> ids = idsOf(rest);
    if (!ids)
        return std::nullopt;
    match.ids = std::move(ids->ids);
    match.isAllBut = ids->isAllBut;
    return match;
}

std::optional<QueryMatches::Ids> QueryMatches::idsOf(const QueryPlan& plan) {
    Ids found;
    switch (plan.kind) {
        case Kind::Nothing:
            return found;
        case Kind::Everything:
            found.isAllBut = true;
            return found;
        case Kind::Matches:
            return matchedBy(plan.matches);
        case Kind::Topics:
            for (const std::int32_t topic : plan.topics) {
                Query rows(ofTopic, asked, topic);
                if (!addRows(found.ids, rows))
                    return std::nullopt;
            }
            return found;
        case Kind::Symbols:
            for (const QueryPlan::Symbol& symbol : plan.symbols) {
                if (!addNamed(found.ids, symbol))
                    return std::nullopt;
            }
            return found;
        case Kind::Days: {
            Query rows(ofDays, asked, plan.days.first, plan.days.last);
            return addRows(found.ids, rows) ? std::optional(std::move(found)) : std::nullopt;
        }
        case Kind::State: {
            Query rows(statementFor(plan.state), asked);
            return addRows(found.ids, rows) ? std::optional(std::move(found)) : std::nullopt;
        }
        case Kind::Not: {
            std::optional<Ids> ids = idsOf(plan.parts.front());
            if (ids)
                ids->isAllBut = !ids->isAllBut;
            return ids;
        }
        case Kind::All:
        case Kind::Any:
            break;
    }
    return idsOfParts(plan);
}

// One of them holds what is not outside all of them.
std::optional<QueryMatches::Ids> QueryMatches::idsOfParts(const QueryPlan& plan) {
    const bool isAll = plan.kind == Kind::All;
    Ids found;
    found.isAllBut = true;
    for (const QueryPlan& part : plan.parts) {
        std::optional<Ids> ids = idsOf(part);
        if (!ids)
            return std::nullopt;
        ids->isAllBut ^= !isAll;
        found.keepCommon(*ids);
    }
    found.isAllBut ^= !isAll;
    return found;
}

std::optional<QueryMatches::Ids> QueryMatches::matchedBy(const QStringList& matches) {
    const auto there = known.find(matches);
    if (there != known.end())
        return Ids{there->second};
    IdSet ids;
    for (const QString& match : matches) {
        if (!ask(ids, match))
            return std::nullopt;
    }
    if (known.size() < mostKnown)
        known.emplace(matches, ids);
    return Ids{std::move(ids)};
}

bool QueryMatches::addNamed(IdSet& ids, const QueryPlan::Symbol& symbol) {
    if (symbol.market) {
        Query rows(naming, asked, *symbol.market, symbol.code);
        return addRows(ids, rows);
    }
    Query rows(namingAnywhere, asked, symbol.code);
    return addRows(ids, rows);
}

bool QueryMatches::addRows(IdSet& ids, Query& query) {
    for (int count = 0; query.next(); ++count) {
        if (count % stopAskedEvery == 0 && stopped())
            return false;
        ids.add(query.number(0));
    }
    return !query.failed();
}

}  // namespace wirepane
