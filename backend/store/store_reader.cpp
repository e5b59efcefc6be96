// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_reader.h"

#include "backend/store/schema.h"
#include "host/contract/clock.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

StoredCategory categoryIn(Query& row) {
    return {row.smallNumber(0), row.text(1), row.text(2)};
}

int appendEntries(std::vector<CHeadlineTable>& table, unsigned char service, Query& query) {
    const std::size_t before = table.size();
    while (query.next())
        table.push_back({query.number(0), query.smallNumber(1), service, 0, 0});
    return static_cast<int>(table.size() - before);
}

}  // namespace

std::int64_t awaitedSince() {
    constexpr std::int64_t day = 86'400;
    return host_clock::now() - day;
}

StoreReader::StoreReader(Database& database)
    : version(database),
      allServices(database, "SELECT id FROM services WHERE position > 0 ORDER BY position, id"),
      oneService(database,
                 "SELECT full_name, short_name, authorised FROM services WHERE id = ? AND position > 0"),
      allCategories(database,
                    "SELECT id, name, colour FROM service_categories "
                    "JOIN categories ON categories.space = service_categories.space AND id = category "
                    "WHERE service = ? ORDER BY category"),
      oneCategory(database, "SELECT id, name, colour FROM categories WHERE space = ? AND id = ?"),
      newestHeadline(database,
                     "SELECT time FROM headlines WHERE service = ? AND time >= ? AND time < ? "
                     "ORDER BY time DESC LIMIT 1"),
      byCategory(database,
                 "SELECT time, sequence FROM headlines WHERE service = ? AND category = ? AND time >= ? AND "
                 "time < ? ORDER BY time DESC, sequence DESC"),
      bySymbol(database,
               "SELECT time, sequence FROM shown_symbols WHERE service = ? AND market = ? AND code = ? AND "
               "time >= ? AND time < ? ORDER BY time DESC, sequence DESC"),
      oneHeadline(database,
                  "SELECT title, category FROM headlines WHERE service = ? AND time = ? AND sequence = ?"),
      oneReceived(database, "SELECT received FROM headlines WHERE service = ? AND time = ? AND sequence = ?"),
      oneStory(database,
               "SELECT coalesce(unpacked(text, id), CASE WHEN received < ?4 THEN '' END) "
               "FROM headlines LEFT JOIN stories ON headline = id "
               "WHERE service = ?1 AND time = ?2 AND sequence = ?3"),
      allRelated(
          database,
          "SELECT market, code FROM headlines LEFT JOIN related_symbols ON headline = id "
          "WHERE headlines.service = ? AND headlines.time = ? AND headlines.sequence = ? ORDER BY position"),
      oneState(database,
               "SELECT (SELECT count(*) FROM versions WHERE headline = id AND differs), moment, reason "
               "FROM headlines LEFT JOIN withdrawals ON headline = id "
               "WHERE service = ? AND time = ? AND sequence = ?"),
      allVersions(database,
                  "SELECT versions.time, versions.received, versions.title, unpacked(text, headline), "
                  "lead(versions.received, 1, headlines.received) OVER (ORDER BY number), shown, opened "
                  "FROM headlines JOIN versions ON headline = id "
                  "WHERE service = ? AND headlines.time = ? AND sequence = ? ORDER BY number"),
      allOrigins(database,
                 "SELECT coalesce(nullif(definition ->> '$.title', ''), name) FROM headlines "
                 "JOIN item_origins ON item_origins.service = headlines.service AND "
                 "item_origins.identity = headlines.identity JOIN sources ON name = source "
                 "WHERE headlines.service = ? AND time = ? AND sequence = ? ORDER BY taken, position") {}

std::vector<unsigned char> StoreReader::serviceIds() {
    std::vector<unsigned char> ids;
    for (Query query(allServices); query.next();)
        ids.push_back(static_cast<unsigned char>(query.number(0)));
    return ids;
}

std::optional<StoredService> StoreReader::service(unsigned char id) {
    Query query(oneService, id);
    if (!query.next())
        return std::nullopt;
    return StoredService{query.text(0), query.text(1), query.number(2) != 0};
}

std::vector<StoredCategory> StoreReader::categories(unsigned char service) {
    std::vector<StoredCategory> found;
    for (Query query(allCategories, service); query.next();)
        found.push_back(categoryIn(query));
    return found;
}

std::optional<std::int64_t> StoreReader::newestTime(unsigned char service, const DayBounds& bounds) {
    Query query(newestHeadline, service, bounds.begin, bounds.end);
    return query.next() ? std::optional(query.number(0)) : std::nullopt;
}

std::optional<StoredCategory> StoreReader::category(unsigned char service, std::int32_t id) {
    Query query(oneCategory, categorySpaceOf(service), id);
    if (!query.next())
        return std::nullopt;
    return categoryIn(query);
}

int StoreReader::appendCategory(std::vector<CHeadlineTable>& table, unsigned char service,
                                std::int32_t category, const DayBounds& bounds) {
    Query query(byCategory, service, category, bounds.begin, bounds.end);
    return appendEntries(table, service, query);
}

int StoreReader::appendSymbol(std::vector<CHeadlineTable>& table, unsigned char service,
                              const CSymbolInfo& symbol, const DayBounds& bounds) {
    const auto start = static_cast<std::ptrdiff_t>(table.size());
    int count = 0;
    {
        Query query(bySymbol, service, symbol.market, symbol.code, bounds.begin, bounds.end);
        count = appendEntries(table, service, query);
    }
    if (symbol.market == 0)
        return count;
    Query query(bySymbol, service, 0, symbol.code, bounds.begin, bounds.end);
    if (appendEntries(table, service, query) > 0) {
        const auto first = table.begin() + start;
        std::inplace_merge(first, first + count, table.end(), isNewer);
        table.erase(std::unique(first, table.end(),
                                [](const auto& a, const auto& b) { return keyOf(a) == keyOf(b); }),
                    table.end());
    }
    return static_cast<int>(table.end() - table.begin() - start);
}

std::optional<CHeadline> StoreReader::headline(const HeadlineKey& key) {
    Query query(oneHeadline, key.service, key.time, key.sequence);
    if (!query.next())
        return std::nullopt;
    CHeadline headline;
    headline.service = key.service;
    headline.time = key.time;
    headline.sequence = key.sequence;
    headline.title = query.text(0);
    headline.categoryId = query.smallNumber(1);
    return headline;
}

std::optional<std::int64_t> StoreReader::received(const HeadlineKey& key) {
    Query query(oneReceived, key.service, key.time, key.sequence);
    return query.next() ? std::optional(query.number(0)) : std::nullopt;
}

std::optional<QString> StoreReader::story(const HeadlineKey& key) {
    Query query(oneStory, key.service, key.time, key.sequence, awaitedSince());
    if (!query.next())
        return QString();
    return query.isNull(0) ? std::nullopt : std::optional(query.text(0));
}

std::optional<std::vector<CSymbolInfo>> StoreReader::relatedSymbols(const HeadlineKey& key) {
    std::optional<std::vector<CSymbolInfo>> symbols;
    for (Query query(allRelated, key.service, key.time, key.sequence); query.next();) {
        if (!symbols)
            symbols.emplace();
        if (!query.isNull(0))
            symbols->push_back({static_cast<unsigned char>(query.number(0)), query.text(1)});
    }
    return symbols;
}

NewsState StoreReader::state(const HeadlineKey& key) {
    NewsState state;
    Query query(oneState, key.service, key.time, key.sequence);
    if (!query.next())
        return state;
    state.corrections = query.smallNumber(0);
    if (!query.isNull(1))
        state.withdrawal = Withdrawal{query.number(1), query.text(2)};
    return state;
}

std::vector<NewsVersion> StoreReader::versions(const HeadlineKey& key) {
    std::vector<NewsVersion> versions;
    for (Query query(allVersions, key.service, key.time, key.sequence); query.next();)
        versions.push_back({query.number(0), query.number(1), query.text(2),
                            query.isNull(3) ? std::nullopt : std::optional(query.text(3)), query.number(4),
                            query.number(5), query.number(6)});
    return versions;
}

QStringList StoreReader::origins(const HeadlineKey& key) {
    constexpr auto ofTheList = "net:"_L1;  // a name that was made of the host
    QStringList titles;
    for (Query query(allOrigins, key.service, key.time, key.sequence); query.next();) {
        const QString title = query.text(0);
        titles += title.startsWith(ofTheList) ? title.sliced(ofTheList.size()) : title;
    }
    return titles;
}

}  // namespace wirepane
