// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_rule.h"
#include "backend/search/hit_words.h"
#include "backend/search/title_query_set.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace wirepane {

// The queries of all rules, tried on a headline together. Thread: any one at a time.
class AlertMatcher {
public:
    // The planner is not needed any more then. A rule whose query has a fault matches nothing.
    AlertMatcher(const std::vector<AlertRule>& rules, QueryPlanner& planner,
                 TitleQuerySet::RelatedSymbols related);

    // Calls `take` with each rule's place among them that wants the headline, rising, and with the words that
    // stand in the title, each once.
    using Take = std::function<void(std::size_t rule, const QStringList& words)>;
    void match(const CHeadline& headline, const Take& take) const;

private:
    std::shared_ptr<const TitleQuerySet> set;
    std::vector<std::shared_ptr<const HitWords>> hits;  // by rule; null: it looks for no words
};

}  // namespace wirepane
