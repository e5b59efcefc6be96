// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/condition_parts.h"

#include "host/contract/query/search_query.h"
#include "host/contract/search_choices.h"

#include <QStringList>

#include <iterator>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The query as it reads, where it is several things side by side: none of its brackets or fields encloses
// them all.
std::optional<QueryNode> listOfParts(const QString& query) {
    ReadQuery read = readQuery(query);
    auto* root = std::get_if<QueryNode>(&read);
    if (root == nullptr || (root->kind != QueryNode::Kind::All && root->kind != QueryNode::Kind::Any) ||
        root->parts.front().position != root->position)
        return std::nullopt;
    return std::move(*root);
}

}  // namespace

std::vector<QString> wordsOf(const CSearch& condition) {
    if (!condition.isQuery())
        return condition.keywords;
    const QString query = condition.query();
    const auto list = listOfParts(query);
    if (!list)
        return condition.keywords;
    std::vector<QString> words;
    for (const QueryNode& part : list->parts)
        words.push_back(query.mid(part.position, part.length));
    return words;
}

bool isAnyEnough(const CSearch& condition) {
    if (!condition.isQuery())
        return condition.keywords.size() > 1 && shownMethod(condition.method) == SearchMethod::Any;
    const auto list = listOfParts(condition.query());
    return list && list->kind == QueryNode::Kind::Any;
}

CSearch withoutWord(const CSearch& condition, std::size_t word) {
    CSearch rest = condition;
    std::vector<QString> words = wordsOf(condition);
    if (word >= words.size())
        return rest;
    words.erase(std::next(words.begin(), static_cast<std::ptrdiff_t>(word)));
    if (!condition.isQuery() || words.empty())
        rest.keywords = words;
    else
        rest.keywords = {
            QStringList(words.begin(), words.end()).join(isAnyEnough(condition) ? u" | "_s : u" "_s)};
    return rest;
}

CSearch withoutSymbol(CSearch condition, std::size_t symbol) {
    if (symbol < condition.symbols.size())
        condition.symbols.erase(std::next(condition.symbols.begin(), static_cast<std::ptrdiff_t>(symbol)));
    return condition;
}

std::optional<CSearch> withoutDays(const CSearch& condition) {
    if (!condition.isQuery() || isAnyEnough(condition))
        return std::nullopt;
    const QString query = condition.query();
    const auto list = listOfParts(query);
    if (!list)
        return std::nullopt;
    QStringList rest;
    for (const QueryNode& part : list->parts) {
        if (part.kind != QueryNode::Kind::Days)
            rest += query.mid(part.position, part.length);
    }
    if (rest.empty() || rest.size() == static_cast<qsizetype>(list->parts.size()))
        return std::nullopt;
    CSearch onAllDays = condition;
    onAllDays.keywords = {rest.join(u' ')};
    return onAllDays;
}

}  // namespace wirepane
