// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/newest_titles.h"

#include "backend/search/title_query.h"
#include "host/contract/query/search_query.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr std::size_t titlesTried = 4000;
constexpr std::size_t stopAskedEvery = 256;  // titles

}  // namespace

NewestTitles::NewestTitles(Database& database)
    : planner(database),
      newest(database,
             "SELECT time, sequence, category, title FROM headlines WHERE service = ? AND "
             "time <= ? AND NOT EXISTS(SELECT 1 FROM withdrawals WHERE headline = id) ORDER BY time DESC, "
             "sequence DESC "
             "LIMIT ?"),
      named(database,
            "SELECT market, code FROM related_symbols WHERE headline = "
            "(SELECT id FROM headlines WHERE service = ? AND time = ? AND sequence = ?)") {}

std::vector<CHeadlineTable> NewestTitles::find(const std::vector<unsigned char>& services,
                                               const QString& query, std::int64_t latest,
                                               const std::atomic<bool>& stop) {
    std::vector<CHeadlineTable> found;
    const auto wanted = TitleQuery::make(
        query, planner, [this](const CHeadline& headline) { return symbolsOf(headline); }, QueryUse::Titles);
    if (!wanted || services.empty())
        return found;
    std::size_t tried = 0;
    for (const unsigned char service : services) {
        Query rows(newest, service, latest, std::int64_t(titlesTried / services.size()));
        while (rows.next()) {
            if (++tried % stopAskedEvery == 0 && stop)
                return {};
            CHeadline headline;
            headline.service = service;
            headline.time = rows.number(0);
            headline.sequence = rows.smallNumber(1);
            headline.title = rows.text(3);
            if (wanted->wants(headline, rows.smallNumber(2)))
                found.push_back({headline.time, headline.sequence, service, 0, 0});
        }
    }
    return found;
}

std::vector<CSymbolInfo> NewestTitles::symbolsOf(const CHeadline& headline) {
    std::vector<CSymbolInfo> symbols;
    Query rows(named, headline.service, headline.time, headline.sequence);
    while (rows.next())
        symbols.push_back({static_cast<unsigned char>(rows.smallNumber(0)), rows.text(1)});
    return symbols;
}

}  // namespace wirepane
