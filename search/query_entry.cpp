// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/query_entry.h"

#include "headline_list/language_keys.h"
#include "host/contract/lang_text.h"
#include "search/dialog_controls.h"

#include <QStringList>

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int allMethod = numberOf(SearchMethod::All);
constexpr int anyMethod = numberOf(SearchMethod::Any);

QString quoted(const QString& keyword) {
    static const QString marks = u"\"“”„‟＂"_s;
    QString text = keyword;
    for (const QChar mark : marks)
        text.replace(mark, u' ');
    return u'"' + text + u'"';
}

QString wantedOf(const EntryLists& lists) {
    return lists.method == queryChoice ? QStringList(lists.keywords.begin(), lists.keywords.end()).join(u' ')
                                       : queryOfKeywords(lists.keywords, lists.method);
}

bool isPlainText(const QueryNode& node) {
    return node.kind == QueryNode::Kind::Text && node.field == QueryField::Anywhere && !node.isCut;
}

bool addTexts(KeywordList& list, std::span<const QueryNode> nodes) {
    for (const QueryNode& node : nodes) {
        if (!isPlainText(node))
            return false;
        list.push_back(node.text);
    }
    return true;
}

std::optional<EntryLists> listsOfQuery(const QString& query) {
    const ReadQuery read = readQuery(query);
    const auto* root = std::get_if<QueryNode>(&read);
    if (root == nullptr)
        return std::nullopt;
    std::vector<QueryNode> parts;
    if (root->kind == QueryNode::Kind::All)
        parts = root->parts;
    else
        parts = {*root};
    const auto excluded = std::stable_partition(
        parts.begin(), parts.end(), [](const QueryNode& part) { return part.kind != QueryNode::Kind::Not; });
    EntryLists lists;
    lists.method = allMethod;
    for (auto part = excluded; part != parts.end(); ++part) {
        if (!addTexts(lists.excluded, part->parts))
            return std::nullopt;
    }
    parts.erase(excluded, parts.end());
    const bool isChoice = parts.size() == 1 && parts.front().kind == QueryNode::Kind::Any;
    if (isChoice)
        lists.method = anyMethod;
    return addTexts(lists.keywords, isChoice ? std::span<const QueryNode>(parts.front().parts) : parts)
               ? std::optional(std::move(lists))
               : std::nullopt;
}

}  // namespace

QString queryOfKeywords(const KeywordList& keywords, int method) {
    QStringList texts;
    std::transform(keywords.begin(), keywords.end(), std::back_inserter(texts), quoted);
    const bool isChoice = method == anyMethod && texts.size() > 1;
    return isChoice ? u'(' + texts.join(u" | "_s) + u')' : texts.join(u' ');
}

EnteredCondition conditionOfLists(const EntryLists& lists) {
    const bool isEmpty = lists.keywords.empty() && lists.excluded.empty();
    if (isEmpty || (lists.excluded.empty() && lists.method != queryChoice))
        return {SearchLanguage::Plain, lists.keywords,
                lists.method == queryChoice ? allMethod : lists.method};
    QStringList pieces;
    if (!lists.keywords.empty())
        pieces += wantedOf(lists);
    for (const QString& keyword : lists.excluded)
        pieces += u'-' + quoted(keyword);
    return {SearchLanguage::Query, {pieces.join(u' ')}, allMethod};
}

EntryLists listsOfCondition(const EnteredCondition& condition) {
    if (condition.language == SearchLanguage::Plain)
        return {condition.keywords, {}, numberOf(shownMethod(condition.method))};
    const QString query = condition.keywords.empty() ? QString() : condition.keywords.front();
    return listsOfQuery(query).value_or(EntryLists{condition.keywords, {}, queryChoice});
}

QString textOf(const QueryFault& fault) {
    return langText(keyOf(fault.kind)).arg(QString::number(fault.character), fault.found);
}

std::optional<SearchLanguage> askLanguage(QWidget* below, const QString& query, QueryUse use) {
    const ReadQuery read = readQuery(query, use);
    const auto* fault = std::get_if<QueryFault>(&read);
    if (fault == nullptr)
        return SearchLanguage::Query;
    const QString question = textOf(*fault) + u"\n\n"_s + langText(keys::searchAsText);
    return askYesNo(below, question) ? std::optional(SearchLanguage::Plain) : std::nullopt;
}

std::optional<EnteredCondition> askCondition(QWidget* below, EnteredCondition condition,
                                             const KeywordList& keywords, QueryUse use) {
    if (condition.language == SearchLanguage::Plain)
        return condition;
    const auto language = askLanguage(below, condition.keywords.front(), use);
    if (language == SearchLanguage::Plain)
        condition = {SearchLanguage::Plain, keywords, allMethod};
    return language ? std::optional(std::move(condition)) : std::nullopt;
}

}  // namespace wirepane
