// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/news_search.h"

#include "backend/database/read_transaction.h"
#include "backend/search/index_phrases.h"
#include "host/contract/clock.h"
#include "host/contract/search_choices.h"

#include <QStringList>

#include <algorithm>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr int stopAskedEvery = 256;             // matches
constexpr std::size_t newestLookedAt = 16'000;  // headlines of all services together
constexpr std::size_t mostOfNewest = newestLookedAt / 32;

// The queries whose matches together are those of the condition. What must all be there is asked for at once:
// the index passes over the many matches of one word that those of a rare one leave behind. What may be there
// is cheaper to put together here.
QStringList queriesOf(const CSearch& condition) {
    QStringList phrases;
    for (const QString& keyword : condition.keywords) {
        if (const QString phrase = indexPhrase(keyword); !phrase.isEmpty())
            phrases += phrase;
    }
    if (condition.method != numberOf(SearchMethod::Any) && !phrases.isEmpty())
        phrases = {phrases.join(u" AND "_s)};
    for (QString& query : phrases)
        query = withinScope(query, scopeOf(condition.scope));
    return phrases;
}

}  // namespace

NewsSearch::NewsSearch(Database& database)
    : store(database),
      keys(database),
      version(database),
      matching(database, "SELECT rowid FROM news_search WHERE news_search MATCH ?"),
      matchingAmong(database,
                    "SELECT rowid FROM news_search WHERE news_search MATCH ? AND rowid BETWEEN ? AND ?"),
      naming(database,
             "SELECT headline FROM related_symbols WHERE service = ? AND market IN (?, 0) AND code = ?"),
      dated(database,
            "SELECT id, time, sequence FROM headlines WHERE service = ? AND time BETWEEN ? AND ? "
            "ORDER BY time DESC, sequence DESC"),
      withdrawn(database, "SELECT headline FROM withdrawals"),
      planner(database),
      queries(database, [this](IdSet& ids, const QString& match) { return addMatches(ids, match); }) {}

template <class Read>
auto NewsSearch::atOneMoment(Read read) {
    const ReadTransaction moment(store);
    const int damagesBefore = store.damages();
    auto found = read();
    if (store.damages() != damagesBefore)
        found.reset();
    return found;
}

std::optional<std::vector<CHeadlineTable>> NewsSearch::find(unsigned char service, const CSearch& condition,
                                                            const std::atomic<bool>* stop) {
    stopping = stop;
    return atOneMoment([&] {
        const std::optional<QueryMatch> match = findNow(service, condition, {});
        return match ? entries(service, *match) : std::nullopt;
    });
}

std::optional<KeyBlocks> NewsSearch::findPacked(unsigned char service, const CSearch& condition,
                                                const std::atomic<bool>* stop) {
    stopping = stop;
    return atOneMoment([&]() -> std::optional<KeyBlocks> {
        const std::optional<QueryMatch> match = findNow(service, condition, {});
        if (match && !match->isAllBut && match->days.areAll())
            return keys.packed(service, match->ids);
        const auto found = match ? entries(service, *match) : std::nullopt;
        return found ? std::optional(KeyBlocks(*found)) : std::nullopt;
    });
}

std::optional<std::vector<CHeadlineTable>> NewsSearch::findOnce(const std::vector<unsigned char>& services,
                                                                const CSearch& condition,
                                                                const Newest& newest,
                                                                const std::atomic<bool>* stop,
                                                                const First& first) {
    stopping = stop;
    return atOneMoment([&]() -> std::optional<std::vector<CHeadlineTable>> {
        if (newest.most <= mostOfNewest) {
            const Since since = recently(services, newest.latest);
            auto found = findSince(since, services, condition, newest);
            const bool wasAll = since.time == Since().time;
            if (!found || found->size() == newest.most || wasAll)
                return found;
            if (first)
                first(*found);
        }
        return findSince({}, services, condition, newest);
    });
}

// As far back as the services can all be looked at in few steps.
NewsSearch::Since NewsSearch::recently(const std::vector<unsigned char>& services, std::int64_t latest) {
    struct Row {
        std::int64_t id;
        std::int64_t time;
    };
    const std::size_t mostOfOne = newestLookedAt / std::max<std::size_t>(services.size(), 1);
    std::vector<Row> rows;
    Since since;
    for (const unsigned char service : services) {
        Query newest(dated, service, since.time, latest);
        for (std::size_t count = 0; newest.next(); ++count) {
            if (count == mostOfOne) {
                since.time = std::max(since.time, rows.back().time + 1);
                break;
            }
            rows.push_back({newest.number(0), newest.number(1)});
        }
    }
    since.ids = {since.ids.last, since.ids.first};
    for (const Row& row : rows) {
        if (row.time < since.time)
            continue;
        since.ids.first = std::min(since.ids.first, row.id);
        since.ids.last = std::max(since.ids.last, row.id);
    }
    return since;
}

std::optional<std::vector<CHeadlineTable>> NewsSearch::findSince(const Since& since,
                                                                 const std::vector<unsigned char>& services,
                                                                 const CSearch& condition,
                                                                 const Newest& newest) {
    std::vector<CHeadlineTable> all;
    std::int64_t earliest = since.time;
    for (const unsigned char service : services) {
        std::optional<QueryMatch> match = findNow(service, condition, since.ids);
        if (!match)
            return std::nullopt;
        match->days.first = std::max(match->days.first, earliest);
        match->days.last = std::min(match->days.last, newest.latest);
        const bool areMany = match->isAllBut || !since.ids.areAll() || !keys.areFew(match->ids);
        const auto found = areMany ? newestEntries(service, *match, newest.most) : entries(service, *match);
        if (!found)
            return std::nullopt;
        all.insert(all.end(), found->begin(), found->end());
        std::stable_sort(all.begin(), all.end(), isNewer);
        all.resize(std::min(all.size(), newest.most));
        // No service need go back beyond what the others have.
        if (all.size() == newest.most && !all.empty())
            earliest = all.back().time;
    }
    return all;
}

void NewsSearch::prepare() {
    keys.catchUp();
}

std::optional<QueryMatch> NewsSearch::findNow(unsigned char service, const CSearch& condition,
                                              const Ids& among) {
    const std::optional<std::int64_t> present = version.read();
    if (!last || !(last->condition == condition) || last->version != present || !(askedAmong == among)) {
        last.reset();
        queries.forget();
        askedAmong = among;
        Last next{condition, present, readQuery(condition.query()), {}};
        if (!condition.isQuery()) {
            std::optional<IdSet> ids = plainMatches(condition);
            if (!ids)
                return std::nullopt;
            next.ids = *std::move(ids);
        }
        last = std::move(next);
    }
    std::optional<QueryMatch> match = matches(service, condition);
    IdSet named;
    for (const CSymbolInfo& symbol : condition.symbols) {
        if (!addNamed(named, service, symbol))
            return std::nullopt;
    }
    if (match && !condition.symbols.empty()) {
        if (match->isAllBut)
            named.remove(match->ids);
        else
            named.keepCommon(match->ids);
        match->ids = std::move(named);
        match->isAllBut = false;
    }
    const auto* query = std::get_if<QueryNode>(&last->query);
    const bool isAskedFor = condition.isQuery() && query != nullptr && asksFor(*query, QueryState::Withdrawn);
    if (match && !isAskedFor && !leaveOutWithdrawn(*match))
        return std::nullopt;
    return match;
}

// There are few of them, so they are asked for each time.
bool NewsSearch::leaveOutWithdrawn(QueryMatch& match) {
    IdSet ids;
    Query query(withdrawn);
    while (query.next())
        ids.add(query.number(0));
    if (match.isAllBut)
        match.ids.add(ids);
    else
        match.ids.remove(ids);
    return !query.failed();
}

std::optional<QueryMatch> NewsSearch::matches(unsigned char service, const CSearch& condition) {
    QueryMatch match;
    if (!condition.isQuery()) {
        match.ids = last->ids;
        return match;
    }
    const auto* query = std::get_if<QueryNode>(&last->query);
    if (query == nullptr)
        return match;
    const auto plan = planner.plan(*query, service, scopeOf(condition.scope), host_clock::today());
    return plan ? queries.find(*plan, service, [this] { return isStopped(); }) : std::nullopt;
}

std::optional<std::vector<CHeadlineTable>> NewsSearch::entries(unsigned char service,
                                                               const QueryMatch& match) {
    if (match.isAllBut)
        return newestEntries(service, match, Newest().most);
    auto found = keys.entries(service, match.ids);
    if (found && !match.days.areAll())
        std::erase_if(*found, [&](const CHeadlineTable& entry) { return !match.days.hold(entry.time); });
    return found;
}

std::optional<std::vector<CHeadlineTable>> NewsSearch::newestEntries(unsigned char service,
                                                                     const QueryMatch& match,
                                                                     std::size_t most) {
    std::vector<CHeadlineTable> found;
    Query rows(dated, service, match.days.first, match.days.last);
    for (int count = 0; found.size() < most && rows.next(); ++count) {
        if (count % stopAskedEvery == 0 && isStopped())
            return std::nullopt;
        if (match.ids.contains(rows.number(0)) != match.isAllBut)
            found.push_back({rows.number(1), rows.smallNumber(2), service, 0, 0});
    }
    return rows.failed() ? std::nullopt : std::optional(std::move(found));
}

std::optional<IdSet> NewsSearch::plainMatches(const CSearch& condition) {
    IdSet found;
    for (const QString& query : queriesOf(condition)) {
        if (!addMatches(found, query))
            return std::nullopt;
    }
    return found;
}

bool NewsSearch::addMatches(IdSet& ids, const QString& text) {
    return askedAmong.areAll() ? addRows(ids, Query(matching, text))
                               : addRows(ids, Query(matchingAmong, text, askedAmong.first, askedAmong.last));
}

bool NewsSearch::addRows(IdSet& ids, Query query) {
    for (int count = 0; query.next(); ++count) {
        if (count % stopAskedEvery == 0 && isStopped())
            return false;
        ids.add(query.number(0));
    }
    return !query.failed();
}

bool NewsSearch::addNamed(IdSet& ids, unsigned char service, const CSymbolInfo& symbol) {
    Query query(naming, service, symbol.market, symbol.code);
    while (query.next())
        ids.add(query.number(0));
    return !query.failed();
}

}  // namespace wirepane
