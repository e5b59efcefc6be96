// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/title_query_set.h"

#include "backend/search/index_phrases.h"
#include "host/contract/fixed_services.h"

#include <algorithm>

namespace wirepane {

namespace {

using Kind = QueryNode::Kind;

bool holdsPhrase(const PhraseFinder::Found& found, const std::vector<PhraseFinder::Number>& phrases) {
    return std::any_of(phrases.begin(), phrases.end(), [&](PhraseFinder::Number phrase) {
        return std::binary_search(found.begin(), found.end(), phrase);
    });
}

}  // namespace

std::shared_ptr<const TitleQuerySet> TitleQuerySet::make(std::span<const QString> queries,
                                                         QueryPlanner& planner, RelatedSymbols related,
                                                         QueryUse use) {
    const std::shared_ptr<TitleQuerySet> set(new TitleQuerySet(std::move(related)));
    for (const QString& query : queries) {
        const ReadQuery read = readQuery(query, use);
        const auto* node = std::get_if<QueryNode>(&read);
        Part part = node != nullptr ? set->partOf(*node, planner) : Part();
        if (node != nullptr && !planner.failed())
            set->take(std::move(part));
        else
            set->roots.emplace_back();
    }
    return set;
}

void TitleQuerySet::take(Part&& part) {
    const std::size_t query = roots.size();
    queriesOf.resize(finder.size());
    if (const std::optional<Phrases> needed = neededBy(part)) {
        for (const PhraseFinder::Number phrase : *needed)
            queriesOf[phrase].push_back(query);
    } else {
        always.push_back(query);
    }
    roots.push_back(std::move(part));
    ++usable;
}

// A text without a word finds nothing.
void TitleQuerySet::addPhrase(Phrases& phrases, const QString& text) {
    if (const QByteArray words = phraseBetweenBlanks(text); !words.isEmpty())
        phrases.push_back(finder.add(words));
}

TitleQuerySet::Part TitleQuerySet::partOf(const QueryNode& node, QueryPlanner& planner) {
    Part part;
    part.kind = node.kind;
    if (node.kind == Kind::Text && node.isCut) {
        part.beginning = phraseBetweenBlanks(node.text);
        part.beginning.chop(1);
    } else if (node.kind == Kind::Text) {
        addPhrase(part.phrases, node.text);
        part.isInStory = node.field == QueryField::Story;
        inStories |= part.isInStory;
    }
    if (node.kind == Kind::Topic) {
        part.topics = planner.topicsNamed(node.text, 0);
        part.warrantTopics = planner.topicsNamed(node.text, warrantService);
    }
    for (std::size_t service = 0; node.kind == Kind::Service && service < serviceCount; ++service)
        part.services[service] = planner.isNamed(static_cast<unsigned char>(service), node.text);
    if (node.kind == Kind::Symbol) {
        MeantSymbols meant = planner.symbolsMeant(node.text);
        for (const QString& name : std::as_const(meant.names))
            addPhrase(part.phrases, name);
        part.symbols = std::move(meant.coded);
    }
    for (const QueryNode& inner : node.parts)
        part.parts.push_back(partOf(inner, planner));
    return part;
}

// Phrases of which a title must hold one at least for the part to hold; none: it may hold without. Of parts
// that must all hold, those of the fewest phrases decide.
std::optional<TitleQuerySet::Phrases> TitleQuerySet::neededBy(const Part& part) {
    if (!part.beginning.isEmpty())
        return std::nullopt;
    if (part.kind == Kind::Text || (part.kind == Kind::Symbol && part.symbols.empty()))
        return part.phrases;
    if (part.kind == Kind::Any) {
        Phrases all;
        for (const Part& inner : part.parts) {
            const std::optional<Phrases> needed = neededBy(inner);
            if (!needed)
                return std::nullopt;
            all.insert(all.end(), needed->begin(), needed->end());
        }
        return all;
    }
    std::optional<Phrases> fewest;
    if (part.kind == Kind::All) {
        for (const Part& inner : part.parts) {
            std::optional<Phrases> needed = neededBy(inner);
            if (needed && (!fewest || needed->size() < fewest->size()))
                fewest = std::move(needed);
        }
    }
    return fewest;
}

bool TitleQuerySet::findWanting(const CHeadline& headline, std::int32_t categoryId, const Told& told) const {
    Tried tried{headline, categoryId, wordsBetweenBlanks(headline.title), {}};
    tried.phrases = finder.find(tried.words);
    return findWanting(tried, told);
}

bool TitleQuerySet::findWanting(const CHeadline& headline, const QString& story, const Told& told) const {
    Tried tried{headline, headline.categoryId, wordsBetweenBlanks(headline.title), {}};
    tried.phrases = finder.find(tried.words);
    tried.inStory = finder.find(wordsBetweenBlanks(story));
    return findWanting(tried, told);
}

bool TitleQuerySet::findWanting(Tried& tried, const Told& told) const {
    const auto isTold = [&](std::size_t query) { return holds(roots[query], tried) && told(query); };
    constexpr std::size_t bits = 64;
    QVarLengthArray<std::uint64_t, 32> seen(static_cast<qsizetype>(roots.size() / bits + 1), 0);
    for (const PhraseFinder::Found* const found : {&tried.phrases, &tried.inStory}) {
        for (const PhraseFinder::Number phrase : *found) {
            for (const std::size_t query : queriesOf[phrase]) {
                std::uint64_t& word = seen[static_cast<qsizetype>(query / bits)];
                const std::uint64_t bit = std::uint64_t{1} << query % bits;
                if ((word & bit) == 0 && isTold(query))
                    return true;
                word |= bit;
            }
        }
    }
    return std::any_of(always.begin(), always.end(), isTold);
}

bool TitleQuerySet::holds(const Part& part, Tried& tried) const {
    const auto innerHolds = [&](const Part& inner) { return holds(inner, tried); };
    switch (part.kind) {
        case Kind::Text:
            return holdsPhrase(part.isInStory ? tried.inStory : tried.phrases, part.phrases) ||
                   (!part.beginning.isEmpty() && tried.words.contains(part.beginning));
        case Kind::Topic: {
            const auto& topics = tried.headline.service == warrantService ? part.warrantTopics : part.topics;
            return std::find(topics.begin(), topics.end(), tried.categoryId) != topics.end();
        }
        case Kind::Service:
            return part.services[tried.headline.service];
        case Kind::Symbol:
            return holdsPhrase(tried.phrases, part.phrases) || namesSymbol(part, tried);
        case Kind::Not:
            return !innerHolds(part.parts.front());
        case Kind::Any:
            return std::any_of(part.parts.begin(), part.parts.end(), innerHolds);
        case Kind::All:
            return std::all_of(part.parts.begin(), part.parts.end(), innerHolds);
        case Kind::Near:
        case Kind::Days:
        case Kind::State:
            break;  // of no query for headlines
    }
    return false;
}

bool TitleQuerySet::namesSymbol(const Part& part, Tried& tried) const {
    if (part.symbols.empty())
        return false;
    if (!tried.related)
        tried.related = related(tried.headline);
    return std::any_of(tried.related->begin(), tried.related->end(), [&](const CSymbolInfo& symbol) {
        return std::any_of(part.symbols.begin(), part.symbols.end(), [&](const QueryPlan::Symbol& meant) {
            const bool isThere = !meant.market || symbol.market == *meant.market || symbol.market == 0;
            return isThere && symbol.code == meant.code;
        });
    });
}

}  // namespace wirepane
