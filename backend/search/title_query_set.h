// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/phrase_finder.h"
#include "backend/search/query_plan.h"
#include "host/contract/query/headline_query.h"

#include <bitset>
#include <functional>
#include <limits>
#include <optional>
#include <span>

namespace wirepane {

// Queries that are tried on headlines, by the rules by which the index finds titles: split and folded in the
// same way, without asking it. A title is split once for all of them, and only those are looked at of which
// it holds a text, and those that may want a headline without any.
class TitleQuerySet final : public HeadlineQuerySet {
public:
    // Asked only for headlines that a symbol: has to decide, once for each.
    using RelatedSymbols = std::function<std::vector<CSymbolInfo>(const CHeadline&)>;

    // A query wants nothing when it has a fault, or the store cannot be read. The planner is not needed any
    // more then.
    static std::shared_ptr<const TitleQuerySet> make(std::span<const QString> queries, QueryPlanner& planner,
                                                     RelatedSymbols related,
                                                     QueryUse use = QueryUse::Headlines);

    // No query is without a fault.
    bool isEmpty() const { return usable == 0; }
    // Some of them, made for alerts, look for texts in stories.
    bool looksAtStories() const { return inStories; }

    bool findWanting(const CHeadline& headline, std::int32_t categoryId, const Told& told) const override;
    // The same of a headline whose story has come.
    bool findWanting(const CHeadline& headline, const QString& story, const Told& told) const;

private:
    static constexpr std::size_t serviceCount = std::numeric_limits<unsigned char>::max() + 1;
    using Phrases = std::vector<PhraseFinder::Number>;
    struct Part {
        QueryNode::Kind kind = QueryNode::Kind::All;
        bool isInStory = false;  // of a text
        Phrases phrases;         // one of them suffices
        QByteArray beginning;    // the last word of which may go on
        std::vector<std::int32_t> topics;
        std::vector<std::int32_t> warrantTopics;  // which are numbered for themselves
        std::bitset<serviceCount> services;
        std::vector<QueryPlan::Symbol> symbols;
        std::vector<Part> parts;
    };
    struct Tried {
        const CHeadline& headline;
        std::int32_t categoryId;
        QByteArray words;
        PhraseFinder::Found phrases;
        PhraseFinder::Found inStory = {};
        std::optional<std::vector<CSymbolInfo>> related = {};  // once it was asked for
    };
    explicit TitleQuerySet(RelatedSymbols symbols) : related(std::move(symbols)) {}

    void take(Part&& part);
    Part partOf(const QueryNode& node, QueryPlanner& planner);
    void addPhrase(Phrases& phrases, const QString& text);
    static std::optional<Phrases> neededBy(const Part& part);
    bool findWanting(Tried& tried, const Told& told) const;
    bool holds(const Part& part, Tried& tried) const;
    bool namesSymbol(const Part& part, Tried& tried) const;

    const RelatedSymbols related;
    std::vector<Part> roots;
    std::size_t usable = 0;
    bool inStories = false;
    PhraseFinder finder;
    std::vector<std::vector<std::size_t>> queriesOf;  // by phrase: those that need it, or another
    std::vector<std::size_t> always;                  // those that may do without any
};

}  // namespace wirepane
