// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Conditions taken apart: what stays asks for what the user still sees.
#include "search/condition_parts.h"

#include "host/contract/query/search_query.h"
#include "tests/support/conditions.h"
#include "tests/support/qt_printers.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

CSearch queryOf(const QString& text) {
    CSearch search = condition({text});
    search.language = SearchLanguage::Query;
    return search;
}

QString joinedWords(const CSearch& search) {
    const std::vector<QString> words = wordsOf(search);
    return QStringList(words.begin(), words.end()).join(u'/');
}

}  // namespace

TEST(ConditionParts, AQueryComesApartWhereNothingEnclosesItsParts) {
    const struct {
        QString query;
        QString parts;
        QString withoutFirst;
    } rows[]{
        {u"gold"_s, u"gold"_s, {}},
        {u"  gold   -tin "_s, u"gold/-tin"_s, u"-tin"_s},
        {u"\"rate cut\" -\"old price\" 台積電"_s, u"\"rate cut\"/-\"old price\"/台積電"_s,
         u"-\"old price\" 台積電"_s},
        {u"(gold | silver) mine -(tin lead)"_s, u"(gold | silver)/mine/-(tin lead)"_s, u"mine -(tin lead)"_s},
        {u"title:(gold -mine) from:2026-03 tin*"_s, u"title:(gold -mine)/from:2026-03/tin*"_s,
         u"from:2026-03 tin*"_s},
        {u"gold NEAR/5 mine oil"_s, u"gold NEAR/5 mine/oil"_s, u"oil"_s},
        {u"a b | (c d) |symbol:22:0700"_s, u"a b/(c d)/symbol:22:0700"_s, u"(c d) | symbol:22:0700"_s},
        {u"(gold silver)"_s, u"(gold silver)"_s, {}},
        {u"title:(gold silver)"_s, u"title:(gold silver)"_s, {}},
        {u"-(gold | silver)"_s, u"-(gold | silver)"_s, {}},
        {u"(gold"_s, u"(gold"_s, {}},
    };
    for (const auto& row : rows) {
        const CSearch search = queryOf(row.query);
        EXPECT_EQ(joinedWords(search), row.parts);
        const CSearch rest = withoutWord(search, 0);
        EXPECT_EQ(rest.query(), row.withoutFirst);
        EXPECT_EQ(rest.keywords.empty(), row.withoutFirst.isEmpty());
        EXPECT_TRUE(rest.isQuery());
        EXPECT_TRUE(rest.keywords.empty() || std::holds_alternative<QueryNode>(readQuery(rest.query())))
            << rest.query().toStdString();
    }
    EXPECT_TRUE(isAnyEnough(queryOf(u"a b | c"_s)));
    EXPECT_FALSE(isAnyEnough(queryOf(u"(a | b) c"_s)));
}

TEST(ConditionParts, KeywordsAndSymbolsGoOneByOne) {
    CSearch search = condition(awkward, 2, 2);
    EXPECT_EQ(wordsOf(search), awkward);
    EXPECT_TRUE(isAnyEnough(search));
    EXPECT_EQ(withoutWord(search, 1).keywords.size(), awkward.size() - 1);
    EXPECT_EQ(withoutWord(search, awkward.size()), search) << "there is no such word";
    EXPECT_TRUE(withoutWord(condition({u"gold"_s}), 0).keywords.empty());
    search.symbols = {{22, u"0700"_s}, {16, u"2330"_s}};
    EXPECT_EQ(withoutSymbol(search, 0).symbols, (std::vector<CSymbolInfo>{{16, u"2330"_s}}));
    EXPECT_EQ(withoutSymbol(search, 2), search);
}

TEST(ConditionParts, DaysGoTogetherWhereAllOfTheConditionIsOfThem) {
    const struct {
        QString query;
        QString onAllDays;  // empty: it is not narrowed by days alone
    } rows[]{
        {u"from:2026-03 gold to:today -tin"_s, u"gold -tin"_s},
        {u"台積電 on:-3d"_s, u"台積電"_s},
        {u"gold | on:today"_s, {}},
        {u"gold -on:today"_s, {}},
        {u"gold (tin | on:today)"_s, {}},
        {u"from:2026 to:today"_s, {}},
        {u"on:today"_s, {}},
        {u"gold \"on:today\""_s, {}},
        {u"gold from:never"_s, {}},
    };
    for (const auto& row : rows) {
        CSearch search = queryOf(row.query);
        search.symbols = {{22, u"0700"_s}};
        const auto rest = withoutDays(search);
        ASSERT_EQ(rest.has_value(), !row.onAllDays.isEmpty()) << row.query.toStdString();
        if (!rest)
            continue;
        EXPECT_EQ(rest->query(), row.onAllDays);
        EXPECT_EQ(rest->symbols, search.symbols);
    }
    EXPECT_FALSE(withoutDays(condition({u"gold"_s, u"on:today"_s}))) << "plain text names no days";
}

}  // namespace wirepane
