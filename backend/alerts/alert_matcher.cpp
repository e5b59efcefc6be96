// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_matcher.h"

#include "backend/alerts/alert_entry.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace wirepane {

namespace {

constexpr std::size_t mostOfStory = 50;  // hits

}  // namespace

AlertMatcher::AlertMatcher(const std::vector<AlertRule>& rules, QueryPlanner& planner,
                           TitleQuerySet::RelatedSymbols related) {
    QStringList queries;
    for (const AlertRule& rule : rules) {
        queries.append(rule.query);
        CSearch condition;
        condition.keywords = {rule.query};
        condition.language = SearchLanguage::Query;
        inTitles.push_back(HitWords::make(condition, planner));
        inStories.push_back(HitWords::makeOfStories(rule.query, planner));
    }
    set = TitleQuerySet::make(queries, planner, std::move(related), QueryUse::Alerts);
}

std::vector<std::size_t> AlertMatcher::wanting(const CHeadline& headline, const QString& story) const {
    std::vector<std::size_t> found;
    set->findWanting(headline, story, [&](std::size_t rule) {
        found.push_back(rule);
        return false;
    });
    std::ranges::sort(found);
    return found;
}

QStringList AlertMatcher::wordsOf(std::size_t rule, const CHeadline& headline, const QString& story) const {
    QStringList words;
    const auto add = [&](const HitWords* hits, const QString& text, HitPlace place, std::size_t most,
                         QLatin1StringView field) {
        if (hits == nullptr || text.isEmpty())
            return;
        for (const SearchHit& hit : hits->hitsIn(text, place, most))
            words += field + text.mid(hit.start, hit.length);
    };
    add(inTitles[rule].get(), headline.title, HitPlace::Title, std::numeric_limits<std::size_t>::max(), {});
    add(inStories[rule].get(), story, HitPlace::Story, mostOfStory, AlertEntry::storyField);
    words.removeDuplicates();
    return words;
}

void AlertMatcher::match(const CHeadline& headline, const QString& story, const Take& take) const {
    for (const std::size_t rule : wanting(headline, story))
        take(rule, wordsOf(rule, headline, story));
}

void AlertMatcher::matchStory(const CHeadline& headline, const QString& story, const Take& take) const {
    const std::vector<std::size_t> before = wanting(headline, {});
    for (const std::size_t rule : wanting(headline, story)) {
        if (!std::ranges::binary_search(before, rule))
            take(rule, wordsOf(rule, headline, story));
    }
}

}  // namespace wirepane
