// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/query_entry.h"

#include "search/typed_query.h"
#include "tests/support/qt_printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

TEST(TypedQuery, TheWordAtTheEndMayGoOnAndFaultsAreLeftOut) {
    const struct {
        QString typed;
        QString sought;
    } cases[] = {
        {{}, {}},
        {u"   "_s, {}},
        {u"us"_s, u"us"_s},  // too many words begin so
        {u"gol"_s, u"gol*"_s},
        {u" tin gold"_s, u"tin gold*"_s},
        {u"gold "_s, u"gold"_s},  // is done
        {u"700"_s, u"700*"_s},
        {u"台積電"_s, u"台積電"_s},
        {u"台積電ADR"_s, u"台積電ADR*"_s},
        {u"tin -gold"_s, u"tin -gold"_s},  // less than is meant would be found
        {u"tin | gol"_s, u"tin | gol*"_s},
        {u"title:cop"_s, u"title:cop*"_s},
        {u"title:"_s, {}},
        {u"gold -"_s, {}},
        {u"\"gold"_s, {}},
        {u"\"gold bars\""_s, u"\"gold bars\""_s},
        {u"(gold"_s, {}},
        {u"gold*"_s, u"gold*"_s},
        {u"on:today"_s, u"on:today"_s},
        {u"nonsense:gold"_s, {}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(typedQuery(one.typed), one.sought) << one.typed.toStdString();
}

TEST(QueryEntry, ListsAndConditionsSayTheSame) {
    constexpr int all = numberOf(SearchMethod::All);
    constexpr int any = numberOf(SearchMethod::Any);
    struct Case {
        EntryLists lists;
        QString query;  // empty: plain
    };
    const std::vector<Case> cases{
        {{{u"gold"_s, u"-x"_s}, {}, any}, u""_s},
        {{{u"gold"_s}, {u"tin ore"_s, u"title:x"_s}, all}, u"\"gold\" -\"tin ore\" -\"title:x\""_s},
        {{{u"gold"_s, u"silver"_s}, {u"OR"_s}, any}, u"(\"gold\" | \"silver\") -\"OR\""_s},
        {{{u"gold"_s, u"silver"_s}, {u"tin"_s}, all}, u"\"gold\" \"silver\" -\"tin\""_s},
        {{{}, {u"黃金"_s}, all}, u"-\"黃金\""_s},
        {{{u"gold NEAR/2 mine"_s}, {}, queryChoice}, u"gold NEAR/2 mine"_s},
    };
    for (const Case& c : cases) {
        const EnteredCondition condition = conditionOfLists(c.lists);
        EXPECT_EQ(condition.language == SearchLanguage::Query, !c.query.isEmpty());
        EXPECT_EQ(condition.keywords, c.query.isEmpty() ? c.lists.keywords : KeywordList{c.query});
        EXPECT_EQ(listsOfCondition(condition), c.lists) << c.query.toStdString();
    }
}

TEST(QueryEntry, WhatListsCannotSayStaysAQuery) {
    for (const QString& query :
         {u"title:gold"_s, u"gol*"_s, u"-(a b)"_s, u"-title:a"_s, u"a (b | c)"_s, u"a b | c"_s, u"a |"_s}) {
        const EntryLists lists = listsOfCondition({SearchLanguage::Query, {query}, 1});
        EXPECT_EQ(lists, (EntryLists{{query}, {}, queryChoice})) << query.toStdString();
        EXPECT_EQ(conditionOfLists(lists).keywords, KeywordList{query});
    }
    const EntryLists mixed{{u"title:gold"_s, u"mine"_s}, {u"a \"b\""_s}, queryChoice};
    EXPECT_EQ(conditionOfLists(mixed).keywords, KeywordList{u"title:gold mine -\"a  b \""_s});
    EXPECT_EQ(conditionOfLists({{}, {}, queryChoice}).keywords, KeywordList());
}

}  // namespace wirepane
