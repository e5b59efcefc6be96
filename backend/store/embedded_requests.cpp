// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What views ask of the back end to be answered later, and what scripts hold back of it.
#include "backend/search/hit_words.h"
#include "backend/search/title_query.h"
#include "backend/store/embedded_back_end.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// How a table's answer says whether there was anything.
signed char statusOf(int entries) {
    return entries > 0 ? 0 : -1;
}

}  // namespace

bool EmbeddedBackEnd::BKQNews_bReRequestHeadlineStory(const CHeadlineTable& entry) {
    requests.add(u"BKQNews_bReRequestHeadlineStory"_s,
                 {entry.service, qlonglong(entry.time), entry.sequence});
    answers.giveLater(Held::Stories, [this, entry] { tellStory(entry); });
    return true;
}

void EmbeddedBackEnd::announceStory(const CHeadlineTable& entry) {
    if (!announced.insert(entry).second)
        return;
    answers.giveLater(Held::Stories, [this, entry] {
        announced.erase(entry);
        respStory(entry);
    });
}

// What the table holds is asked at the moment of the answer.
bool EmbeddedBackEnd::BKNEWS_bReRequestHeadlineTable(unsigned char service, const CSymbolInfo& symbol) {
    requests.add(u"BKNEWS_bReRequestHeadlineTable"_s, {service, symbol.market, symbol.code});
    answers.giveLater(Held::Tables, [this, service, symbol] {
        std::vector<CHeadlineTable> table;
        const CHeadlineTableInfo info{service, statusOf(tableOf(service, table, symbol)), symbol.code};
        forEachReceiver([&](NewsReceiver& receiver) { receiver.vRecvSymHeadlineTableRecovery(&info); });
    });
    return true;
}

bool EmbeddedBackEnd::BKNEWS_bReRequestHeadlineTable(unsigned char service, int kind, const QString& key) {
    requests.add(u"BKNEWS_bReRequestHeadlineTable"_s, {service, kind, key});
    const bool byDate = kind == static_cast<int>(TableKind::ByDate);
    if (!byDate && kind != static_cast<int>(TableKind::ByCategory))
        return false;
    answers.giveLater(Held::Tables, [this, service, kind, key, byDate] {
        std::vector<CHeadlineTable> table;
        const CHeadlineTableInfo info{service, statusOf(tableOf(service, table, kind, key)), key};
        forEachReceiver([&](NewsReceiver& receiver) {
            if (byDate)
                receiver.vRecvAllHeadlineTableRecovery(&info);
            else
                receiver.vRecvCatHeadlineTableRecovery(&info);
        });
    });
    return true;
}

// They hold news, so that none of them is denied.
void EmbeddedBackEnd::announce(const AnnouncedTables& tables) {
    answers.give(Held::Tables, [this, tables] {
        const auto tellOf = [this](unsigned char service, const QString& key, auto operation) {
            const CHeadlineTableInfo info{service, 0, key};
            forEachReceiver([&](NewsReceiver& receiver) { (receiver.*operation)(&info); });
        };
        for (const auto& [service, day] : tables.days)
            tellOf(service, QString::number(day), &NewsReceiver::vRecvAllHeadlineTableRecovery);
        for (const auto& [service, category] : tables.categories)
            tellOf(service, QString::number(category), &NewsReceiver::vRecvCatHeadlineTableRecovery);
        for (const auto& [service, code] : tables.symbols)
            tellOf(service, code, &NewsReceiver::vRecvSymHeadlineTableRecovery);
    });
    for (const auto& [service, news] : tables.news)
        searches.lookAgain(service, news);
}

bool EmbeddedBackEnd::BKQNEWS_bReCoverHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                                               const std::vector<CHeadlineTable>& entries) {
    requests.add(u"BKQNEWS_bReCoverHeadline"_s, {service, qlonglong(entries.size())});
    const std::size_t before = headlines.size();
    BKQNEWS_iGetHeadline(service, headlines, entries);
    if (answers.isHeld(Held::Headlines))
        return true;
    std::vector<CHeadlineTable> missing;
    std::size_t next = before;
    for (const CHeadlineTable& entry : entries) {
        if (next < headlines.size() && keyOf(headlines[next]) == keyOf(entry))
            ++next;
        else if (entry.service == service)
            missing.push_back(entry);
    }
    if (!missing.empty())
        answers.giveLater(Held::Headlines, [this, missing] {
            forEachReceiver([&](NewsReceiver& receiver) { receiver.RespHeadLine(missing); });
        });
    return next > before || !missing.empty();
}

bool EmbeddedBackEnd::BKQNEWS_bSearchNews(unsigned char service, int kind, const CSearch& condition) {
    const QStringList keywords(condition.keywords.begin(), condition.keywords.end());
    requests.add(u"BKQNEWS_bSearchNews"_s, {service, kind, keywords});
    if (kind != static_cast<int>(TableKind::Search) && kind != static_cast<int>(TableKind::SecondSearch))
        return false;
    searches.ask(service, kind, condition);
    return true;
}

std::shared_ptr<const HeadlineQuery> EmbeddedBackEnd::prepareQuery(const QString& query) {
    QueryPlanner planner(*connections.reading);
    return TitleQuery::make(query, planner, symbolsOfHeadlines());
}

std::shared_ptr<const HeadlineQuerySet> EmbeddedBackEnd::prepareQueries(std::span<const QString> queries) {
    QueryPlanner planner(*connections.reading);
    return TitleQuerySet::make(queries, planner, symbolsOfHeadlines());
}

std::shared_ptr<const TitleQuerySet> EmbeddedBackEnd::prepareAlerts(std::span<const QString> queries) {
    QueryPlanner planner(*connections.reading);
    return TitleQuerySet::make(queries, planner, symbolsOfHeadlines(), QueryUse::Alerts);
}

std::function<std::vector<CSymbolInfo>(const CHeadline&)> EmbeddedBackEnd::symbolsOfHeadlines() {
    return [this](const CHeadline& headline) {
        return reader.relatedSymbols(keyOf(headline)).value_or(std::vector<CSymbolInfo>());
    };
}

std::shared_ptr<const HitFinder> EmbeddedBackEnd::prepareHits(const CSearch& condition) {
    QueryPlanner planner(*connections.reading);
    return HitWords::make(condition, planner);
}

std::shared_ptr<const void> EmbeddedBackEnd::findNews(std::vector<CountedSearch> wanted,
                                                      std::function<void(Tables&&)> told) {
    std::vector<SideJob::Search> jobs;
    for (CountedSearch& search : wanted)
        jobs.push_back({std::move(search.condition), std::move(search.services)});
    return searches.askBeside(std::move(jobs), [this, told = std::move(told)](Tables&& found) {
        for (std::vector<CHeadlineTable>& entries : found)
            laterNews.takeOut(entries, 0);
        told(std::move(found));
    });
}

std::shared_ptr<const void> EmbeddedBackEnd::findNewest(const CSearch& condition,
                                                        const std::vector<unsigned char>& services,
                                                        std::size_t most, NewestFound::Told told) {
    moveOn();
    // Among the newest of all, those that are held would take the places of those that are shown.
    const NewsSearch::Newest newest{most, laterNews.shownUpTo()};
    const auto takeFound = [this, told = std::move(told)](std::vector<CHeadlineTable>&& found, bool isAll) {
        // The tables of views hold what this may name.
        moveOn();
        told(found, isAll && !laterNews.showsSomeLater());
        tellNews();
    };
    return searches.askNewest({condition, services, newest}, takeFound);
}

std::shared_ptr<const void> EmbeddedBackEnd::countFound(std::vector<CountedSearch> wanted,
                                                        SearchCounts::Told told) {
    return findNews(std::move(wanted), [told = std::move(told)](Tables&& found) {
        std::vector<int> counts;
        for (const std::vector<CHeadlineTable>& entries : found)
            counts.push_back(static_cast<int>(entries.size()));
        told(counts);
    });
}

void EmbeddedBackEnd::hold(Held what, bool on) {
    if (on) {
        answers.hold(what);
        return;
    }
    answers.release(what);
    if (what != Held::Headlines || awaited.empty())
        return;
    const Entries waited = std::exchange(awaited, {});
    const std::vector<CHeadlineTable> entries(waited.begin(), waited.end());
    forEachReceiver([&](NewsReceiver& receiver) { receiver.RespHeadLine(entries); });
}

}  // namespace wirepane
