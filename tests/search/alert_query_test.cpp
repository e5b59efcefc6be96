// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/alert_query.h"

#include "host/contract/query/search_query.h"
#include "host/contract/search_choices.h"

#include <gtest/gtest.h>
#include <variant>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

bool isOfAlerts(const QString& query) {
    return std::holds_alternative<QueryNode>(readQuery(query, QueryUse::Alerts));
}

TEST(AlertQuery, LooksForTheTextsOfAConditionWhereItDoes) {
    using Scope = SearchScope;
    const struct {
        std::vector<QString> keywords;
        Scope scope;
        SearchMethod method;
        SearchLanguage language;
        std::vector<CSymbolInfo> symbols;
        QString query;
        bool isTaken = true;
    } rows[] = {
        {{u"gold"_s, u"tin mine"_s}, Scope::Headlines, SearchMethod::All, {}, {}, u"\"gold\" \"tin mine\""_s},
        {{u"gold"_s, u"-5%"_s}, Scope::Headlines, SearchMethod::Any, {}, {}, u"(\"gold\" | \"-5%\")"_s},
        {{u"gold"_s}, Scope::Stories, SearchMethod::All, {}, {}, u"story:\"gold\""_s},
        {{u"a"_s, u"b"_s},
         Scope::Both,
         SearchMethod::All,
         {},
         {},
         u"(\"a\" | story:\"a\") (\"b\" | story:\"b\")"_s},
        {{u"gold -(tin | title:lead)"_s},
         Scope::Both,
         {},
         SearchLanguage::Query,
         {},
         u"(\"gold\" | story:\"gold\") -((\"tin\" | story:\"tin\") | title:lead)"_s},
        {{u"-\"a b\" symbol:700"_s},
         Scope::Stories,
         {},
         SearchLanguage::Query,
         {},
         u"-story:\"a b\" symbol:700"_s},
        {{u"gold"_s},
         Scope::Headlines,
         SearchMethod::All,
         {},
         {{16, u"2330"_s}, {22, u"0700"_s}},
         u"(\"gold\") (symbol:16:2330 | symbol:22:0700)"_s},
        // Who is shown it is told what is wrong.
        {{u"gold on:today"_s}, Scope::Headlines, {}, SearchLanguage::Query, {}, u"gold on:today"_s, false},
        {{u"gold ("_s}, Scope::Both, {}, SearchLanguage::Query, {}, u"gold ("_s, false},
    };
    for (const auto& row : rows) {
        CSearch condition;
        condition.keywords = row.keywords;
        condition.scope = numberOf(row.scope);
        condition.method = numberOf(row.method);
        condition.language = row.language;
        condition.symbols = row.symbols;
        EXPECT_EQ(alertQuery(condition), row.query);
        EXPECT_EQ(isOfAlerts(row.query), row.isTaken) << row.query.toStdString();
    }
}

TEST(AlertQuery, LooksForTheWordsAndTopicsOfAKeySet) {
    const CategoryMap topics{{3, u"Market news"_s}, {7, u"財報"_s}, {8, u"Deals"_s}};
    CNewsKey query(CNewsKey::all, {3}, {u"gold -tin"_s});
    query.language = SearchLanguage::Query;
    const std::pair<CNewsKey, QString> rows[] = {
        {{CNewsKey::any, {CNewsKey::everyNewsType}, {u"GOLD"_s, u"TIN"_s}}, u"(\"GOLD\" | \"TIN\")"_s},
        {{CNewsKey::all, {3, 7}, {u"GOLD"_s, u"TIN"_s}},
         u"(\"GOLD\" \"TIN\") (topic:\"Market news\" | topic:\"財報\")"_s},
        {{CNewsKey::all, {9}, {u"GOLD"_s}}, u"(\"GOLD\") topic:9"_s},
        {{CNewsKey::all, {3, 7, 8}, {u"GOLD"_s}}, u"\"GOLD\""_s},
        {query, u"(gold -tin) topic:\"Market news\""_s},
    };
    for (const auto& [keySet, expected] : rows) {
        EXPECT_EQ(alertQuery(keySet, topics), expected);
        EXPECT_TRUE(isOfAlerts(expected)) << expected.toStdString();
    }
}

}  // namespace

}  // namespace wirepane
