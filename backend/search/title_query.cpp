// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/title_query.h"

#include "backend/search/index_phrases.h"
#include "host/contract/fixed_services.h"

#include <algorithm>

namespace wirepane {

namespace {

using Kind = QueryNode::Kind;

// A text without a word finds nothing.
void addPhrase(std::vector<QByteArray>& phrases, const QString& text) {
    if (QByteArray words = phraseBetweenBlanks(text); !words.isEmpty())
        phrases.push_back(std::move(words));
}

bool holdsPhrase(const QByteArray& words, const std::vector<QByteArray>& phrases) {
    return std::any_of(phrases.begin(), phrases.end(),
                       [&](const QByteArray& phrase) { return words.contains(phrase); });
}

}  // namespace

std::shared_ptr<const TitleQuery> TitleQuery::make(const QString& query, QueryPlanner& planner,
                                                   RelatedSymbols related, QueryUse use) {
    const ReadQuery read = readQuery(query, use);
    const auto* node = std::get_if<QueryNode>(&read);
    if (node == nullptr)
        return nullptr;
    Part root = partOf(*node, planner);
    if (planner.failed())
        return nullptr;
    return std::shared_ptr<const TitleQuery>(new TitleQuery(std::move(root), std::move(related)));
}

TitleQuery::Part TitleQuery::partOf(const QueryNode& node, QueryPlanner& planner) {
    Part part;
    part.kind = node.kind;
    if (node.kind == Kind::Text)
        addPhrase(part.phrases, node.text);
    // The word goes on where its end would be.
    if (node.isCut && !part.phrases.empty())
        part.phrases.front().chop(1);
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

bool TitleQuery::wants(const CHeadline& headline, std::int32_t categoryId) const {
    return holds(root, {headline, categoryId, wordsBetweenBlanks(headline.title)});
}

bool TitleQuery::holds(const Part& part, const Tried& tried) const {
    const auto innerHolds = [&](const Part& inner) { return holds(inner, tried); };
    switch (part.kind) {
        case Kind::Text:
            return holdsPhrase(tried.words, part.phrases);
        case Kind::Topic: {
            const auto& topics = tried.headline.service == warrantService ? part.warrantTopics : part.topics;
            return std::find(topics.begin(), topics.end(), tried.categoryId) != topics.end();
        }
        case Kind::Service:
            return part.services[tried.headline.service];
        case Kind::Symbol:
            return holdsPhrase(tried.words, part.phrases) || namesSymbol(part, tried);
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

bool TitleQuery::namesSymbol(const Part& part, const Tried& tried) const {
    const std::vector<CSymbolInfo> named = related(tried.headline);
    return std::any_of(named.begin(), named.end(), [&](const CSymbolInfo& symbol) {
        return std::any_of(part.symbols.begin(), part.symbols.end(), [&](const QueryPlan::Symbol& meant) {
            const bool isThere = !meant.market || symbol.market == *meant.market || symbol.market == 0;
            return isThere && symbol.code == meant.code;
        });
    });
}

}  // namespace wirepane
