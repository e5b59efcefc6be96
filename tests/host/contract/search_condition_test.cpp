// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/search_condition.h"

#include "tests/support/conditions.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

TEST(SearchCondition, SurvivesItsTextForm) {
    CSearch full = condition(awkward, 2, 2);
    full.time = 1772415000;
    full.symbols = {{16, u"2330"_s}, {22, u"A \"B\""_s}};
    full.keywordSearch = true;
    CSearch query = condition({u"-\"a b\""_s}, 0, 1);
    query.language = SearchLanguage::Query;
    for (const CSearch& search : {CSearch(), full, condition({u"one"_s}, 1, 0), query}) {
        const QString text = search.GetString();
        CSearch read = condition({u"other"_s}, 1, 2);
        ASSERT_TRUE(read.LoadStringA(text)) << text.toStdString();
        EXPECT_EQ(read, search);
        EXPECT_EQ(read.time, search.time);
        EXPECT_EQ(read.keywordSearch, search.keywordSearch);
        EXPECT_FALSE(text.contains(u'\n'));
    }
}

TEST(SearchCondition, RefusesDamagedTexts) {
    const QString whole = condition({u"one"_s, u"two"_s}).GetString();
    QStringList damaged{{},
                        u"{}"_s,
                        u"[]"_s,
                        u"C:1 K:one"_s,
                        u"{\"keywords\":\"one\"}"_s,
                        u"{\"keywords\":[],\"scope\":3}"_s,
                        u"{\"keywords\":[],\"method\":-1}"_s,
                        u"{\"keywords\":[],\"method\":\"1\"}"_s,
                        u"{\"keywords\":[\"a\"],\"language\":\"other\"}"_s,
                        u"{\"keywords\":[\"a\",\"b\"],\"language\":\"query\"}"_s,
                        u"{\"keywords\":[],\"symbols\":[[300,\"x\"]]}"_s};
    for (qsizetype length = 1; length < whole.size(); ++length)
        damaged.append(whole.left(length));
    for (const QString& text : std::as_const(damaged)) {
        CSearch search = condition({u"kept"_s}, 1, 2);
        EXPECT_FALSE(search.LoadStringA(text)) << text.toStdString();
        EXPECT_EQ(search, condition({u"kept"_s}, 1, 2)) << text.toStdString();
    }
    CSearch search;
    ASSERT_TRUE(search.LoadStringA(u"{\"keywords\":[\"a\",\"\",\"b\",\"a\",7]}"_s));
    EXPECT_EQ(search.keywords, (std::vector<QString>{u"a"_s, u"b"_s, u"a"_s}));
    EXPECT_FALSE(search.isQuery());
    // What is no query is written as it was before there were any.
    EXPECT_FALSE(search.GetString().contains(u"language"_s));
}

}  // namespace wirepane
