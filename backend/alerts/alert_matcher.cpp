// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_matcher.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace wirepane {

AlertMatcher::AlertMatcher(const std::vector<AlertRule>& rules, QueryPlanner& planner,
                           TitleQuerySet::RelatedSymbols related) {
    QStringList queries;
    for (const AlertRule& rule : rules) {
        queries.append(rule.query);
        CSearch condition;
        condition.keywords = {rule.query};
        condition.language = SearchLanguage::Query;
        hits.push_back(HitWords::make(condition, planner));
    }
    set = TitleQuerySet::make(queries, planner, std::move(related));
}

void AlertMatcher::match(const CHeadline& headline, const Take& take) const {
    std::vector<std::size_t> wanting;
    set->findWanting(headline, headline.categoryId, [&](std::size_t rule) {
        wanting.push_back(rule);
        return false;
    });
    std::ranges::sort(wanting);
    for (const std::size_t rule : wanting) {
        QStringList words;
        const auto all = hits[rule] ? hits[rule]->hitsIn(headline.title, HitPlace::Title,
                                                         std::numeric_limits<std::size_t>::max())
                                    : std::vector<SearchHit>();
        for (const SearchHit& hit : all)
            words += headline.title.mid(hit.start, hit.length);
        words.removeDuplicates();
        take(rule, words);
    }
}

}  // namespace wirepane
