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

    // Some rules look for texts in stories.
    bool looksAtStories() const { return set->looksAtStories(); }

    // Calls `take` with each rule's place among them that wants the headline, rising, and with the words that
    // stand in the title, each once; those of the story stand behind `storyField`. `story` is empty until it
    // has come.
    using Take = std::function<void(std::size_t rule, const QStringList& words)>;
    void match(const CHeadline& headline, const QString& story, const Take& take) const;
    // Only the rules that did not want it without its story.
    void matchStory(const CHeadline& headline, const QString& story, const Take& take) const;

private:
    std::vector<std::size_t> wanting(const CHeadline& headline, const QString& story) const;
    QStringList wordsOf(std::size_t rule, const CHeadline& headline, const QString& story) const;

    std::shared_ptr<const TitleQuerySet> set;
    // By rule; null: it looks for no words there.
    std::vector<std::shared_ptr<const HitWords>> inTitles;
    std::vector<std::shared_ptr<const HitWords>> inStories;
};

}  // namespace wirepane
