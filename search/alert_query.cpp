// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/alert_query.h"

#include "host/contract/query/search_query.h"
#include "host/contract/search_choices.h"
#include "search/query_entry.h"

#include <QStringList>

#include <algorithm>
#include <variant>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString storyField = u"story:"_s;

QString bracketed(const QStringList& choices) {
    return choices.size() == 1 ? choices.front() : u'(' + choices.join(u" | "_s) + u')';
}

QString quoted(const QString& text) {
    return queryOfKeywords({text}, numberOf(SearchMethod::All));
}

// The texts that are looked for anywhere, in their order.
void collectTexts(const QueryNode& node, std::vector<const QueryNode*>& texts) {
    if (node.kind == QueryNode::Kind::Text && node.field == QueryField::Anywhere)
        texts.push_back(&node);
    for (const QueryNode& part : node.parts)
        collectTexts(part, texts);
}

// Alerts look for texts in titles unless they say otherwise.
QString withScope(QString query, SearchScope scope) {
    const ReadQuery read = readQuery(query);
    const auto* root = std::get_if<QueryNode>(&read);
    if (root == nullptr || scope == SearchScope::Headlines)
        return query;
    std::vector<const QueryNode*> texts;
    collectTexts(*root, texts);
    for (auto text = texts.rbegin(); text != texts.rend(); ++text) {
        const QString inStory = storyField + quoted((*text)->text);
        const QString both = bracketed({quoted((*text)->text), inStory});
        query.replace((*text)->position, (*text)->length, scope == SearchScope::Stories ? inStory : both);
    }
    return query;
}

}  // namespace

QString alertQuery(const CSearch& condition) {
    const QString query =
        condition.isQuery() ? condition.query() : queryOfKeywords(condition.keywords, condition.method);
    QStringList parts{withScope(query, scopeOf(condition.scope))};
    QStringList symbols;
    for (const CSymbolInfo& symbol : condition.symbols)
        symbols << u"symbol:%1:%2"_s.arg(symbol.market).arg(symbol.code);
    if (symbols.isEmpty())
        return parts.front();
    return u'(' + parts.front() + u") "_s + bracketed(symbols);
}

QString alertQuery(const CNewsKey& keySet, const CategoryMap& newsTypes) {
    const QString query = keySet.isQuery()
                              ? keySet.query()
                              : queryOfKeywords(keySet.keywords, keySet.knownMethod() == CNewsKey::all
                                                                     ? numberOf(SearchMethod::All)
                                                                     : numberOf(SearchMethod::Any));
    const bool wantsEvery = std::ranges::all_of(newsTypes, [&](const auto& type) {
        return std::ranges::find(keySet.newsTypes, type.first) != keySet.newsTypes.end();
    });
    if (wantsEvery)
        return query;
    QStringList topics;
    for (const std::int32_t type : keySet.newsTypes) {
        const auto known = newsTypes.find(type);
        if (type == CNewsKey::everyNewsType)
            return query;
        topics << u"topic:"_s + (known != newsTypes.end() ? quoted(known->second) : QString::number(type));
    }
    return topics.isEmpty() ? query : u'(' + query + u") "_s + bracketed(topics);
}

}  // namespace wirepane
