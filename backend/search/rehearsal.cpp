// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/rehearsal.h"

#include "backend/database/database.h"
#include "backend/search/index_phrases.h"
#include "backend/search/title_words.h"
#include "host/contract/local_days.h"

#include <QDateTime>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <utility>
#include <variant>

namespace wirepane {

namespace {

constexpr std::int64_t hourSeconds = 3600;

using Wants = KeySetRehearsal::Wants;

// A part that asks for something, ready to be tried alone.
struct AskedPart {
    Wants wants;
    Rehearsal::Word word;
};

// What a query is made ready with.
struct Sources {
    QueryPlanner& planner;
    const RehearsedNews& news;
};

// Stories are read only where the query looks for texts in them. Empty: it has a fault.
Wants wantsOf(const QString& query, const Sources& sources) {
    auto set = TitleQuerySet::make({&query, 1}, sources.planner, sources.news.related, QueryUse::Alerts);
    if (set->isEmpty())
        return {};
    return [set = std::move(set), &news = sources.news](const CHeadline& headline, const QString&) {
        const auto one = [](std::size_t) { return true; };
        if (!set->looksAtStories())
            return set->findWanting(headline, headline.categoryId, one);
        return set->findWanting(headline, news.story(keyOf(headline)), one);
    };
}

struct AskedParts {
    std::vector<AskedPart> parts;
    std::vector<QByteArray> phrases;
};

class PartsOfQuery {
public:
    PartsOfQuery(const QString& query, const Sources& from) : text(query), sources(from) {}

    AskedParts take(const QueryNode& node) {
        collect(node);
        return std::move(asked);
    }

private:
    void collect(const QueryNode& node) {
        if (node.kind == QueryNode::Kind::Not)
            return;
        if (node.kind == QueryNode::Kind::Text)
            asked.phrases.push_back(phraseBetweenBlanks(node.text));
        const QString written = text.mid(node.position, node.length);
        if (node.parts.empty() && seen.insert(written).second) {
            if (Wants wants = wantsOf(written, sources))
                asked.parts.push_back({std::move(wants), {written, 0}});
        }
        for (const QueryNode& inner : node.parts)
            collect(inner);
    }

    const QString& text;
    const Sources& sources;
    std::set<QString> seen;
    AskedParts asked;
};

class Trial {
public:
    Trial(Wants itsWants, AskedParts askedParts, const RehearsedTime& time)
        : wants(std::move(itsWants)),
          parts(std::move(askedParts.parts)),
          words(std::move(askedParts.phrases)) {
        for (int before = time.days - 1; before >= 0; --before)
            result.days.push_back({time.last.addDays(-before), 0});
        firstDay = result.days.empty() ? 0 : result.days.front().day.toJulianDay();
    }

    void take(const CHeadline& headline, const QString& symbol) {
        ++result.tried;
        const bool isHit = wants(headline, symbol);
        words.add(headline.title, isHit);
        if (!isHit)
            return;
        result.hits.push_back(keyOf(headline));
        const auto day = static_cast<std::size_t>(localDays.of(headline.time) - firstDay);
        if (day < result.days.size())
            ++result.days[day].hits;
        ++hours[headline.time - headline.time % hourSeconds];
        for (AskedPart& part : parts)
            part.word.hits += part.wants(headline, symbol) ? 1 : 0;
    }

    Rehearsal finish() {
        std::stable_sort(result.hits.begin(), result.hits.end(),
                         [](const HeadlineKey& a, const HeadlineKey& b) {
                             return a.time != b.time ? a.time > b.time : a.sequence > b.sequence;
                         });
        for (auto hour = hours.rbegin(); hour != hours.rend(); ++hour)
            result.hours.push_back({hour->first, hour->second});
        std::stable_sort(result.hours.begin(), result.hours.end(),
                         [](const auto& a, const auto& b) { return a.hits > b.hits; });
        for (const AskedPart& part : parts)
            result.bringing.push_back(part.word);
        std::stable_sort(result.bringing.begin(), result.bringing.end(),
                         [](const auto& a, const auto& b) { return a.hits > b.hits; });
        result.bringing.resize(std::min(result.bringing.size(), Rehearsal::mostWords));
        result.exclusions = words.mostOfHits();
        return std::move(result);
    }

private:
    const Wants wants;
    std::vector<AskedPart> parts;
    TitleWords words;
    LocalDays localDays;
    std::int64_t firstDay = 0;
    std::map<std::int64_t, int> hours;
    Rehearsal result;
};

// False when the store cannot be read, or nobody waits.
bool tryService(Trial& trial, Statement& headlines, unsigned char service, const RehearsedTime& time) {
    const std::int64_t begin = time.last.addDays(1 - time.days).startOfDay().toSecsSinceEpoch();
    const std::int64_t end = time.last.addDays(1).startOfDay().toSecsSinceEpoch();
    Query query(headlines, service, begin, std::min(end, time.latest + 1));
    CHeadline headline;
    headline.service = service;
    while (query.next()) {
        headline.time = query.number(0);
        headline.sequence = query.smallNumber(1);
        headline.title = query.text(2);
        headline.categoryId = query.smallNumber(3);
        trial.take(headline, query.text(4));
        if (time.dropped != nullptr && *time.dropped)
            return false;
    }
    return !query.failed();
}

// What a key set asks for. Nothing where its query has a fault.
struct Asked {
    Wants wants;
    AskedParts parts;
};

std::optional<Asked> askedOf(const QString& query, const Sources& sources) {
    const ReadQuery read = readQuery(query, QueryUse::Alerts);
    const auto* node = std::get_if<QueryNode>(&read);
    Wants whole = node != nullptr ? wantsOf(query, sources) : Wants();
    if (!whole)
        return std::nullopt;
    return Asked{std::move(whole), PartsOfQuery(query, sources).take(*node)};
}

Asked askedOf(const KeySetRehearsal::KeySet& keySet) {
    Asked asked{keySet.wants, {}};
    for (const KeySetRehearsal::Part& part : keySet.parts) {
        asked.parts.parts.push_back({part.wants, {part.text, 0}});
        asked.parts.phrases.push_back(phraseBetweenBlanks(part.text));
    }
    return asked;
}

// Of the first of them.
QStringList titlesOf(Database& store, const std::vector<HeadlineKey>& hits) {
    Statement named(store, "SELECT title FROM headlines WHERE service = ? AND time = ? AND sequence = ?");
    QStringList titles;
    for (std::size_t hit = 0; hit < std::min(hits.size(), Rehearsal::mostTitles); ++hit) {
        Query title(named, hits[hit].service, hits[hit].time, hits[hit].sequence);
        titles += title.next() ? title.text(0) : QString();
    }
    return titles;
}

Wants ofNewsTypes(Wants wants, const std::vector<std::int32_t>& newsTypes) {
    if (newsTypes.empty())
        return wants;
    return [wants = std::move(wants), &newsTypes](const CHeadline& headline, const QString& symbol) {
        return std::find(newsTypes.begin(), newsTypes.end(), headline.categoryId) != newsTypes.end() &&
               wants(headline, symbol);
    };
}

}  // namespace

std::optional<Rehearsal> rehearse(Database& store, const QString& query, const RehearsedTime& time,
                                  const RehearsedNews& news) {
    return rehearse(store, KeySetRehearsal::KeySet{query, {}, {}, {}, {}}, time, news);
}

std::optional<Rehearsal> rehearse(Database& store, const KeySetRehearsal::KeySet& keySet,
                                  const RehearsedTime& time, const RehearsedNews& news) {
    QueryPlanner planner(store);
    std::optional<Asked> asked = keySet.wants ? askedOf(keySet) : askedOf(keySet.query, {planner, news});
    if (!asked)
        return std::nullopt;
    Trial trial(ofNewsTypes(std::move(asked->wants), keySet.newsTypes), std::move(asked->parts), time);
    Statement headlines(store,
                        "SELECT time, sequence, title, category, (SELECT code FROM related_symbols "
                        "WHERE headline = headlines.id ORDER BY position LIMIT 1) FROM headlines WHERE "
                        "service = ? AND time >= ? "
                        "AND time < ? ORDER BY time, sequence");
    for (const unsigned char service : time.services) {
        if (!tryService(trial, headlines, service, time))
            return std::nullopt;
    }
    Rehearsal found = trial.finish();
    found.titles = titlesOf(store, found.hits);
    return found;
}

}  // namespace wirepane
