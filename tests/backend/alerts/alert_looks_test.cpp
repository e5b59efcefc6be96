// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_looks.h"

#include "backend/store/embedded_back_end.h"
#include "backend/store/store_file.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/backend/store/take_all.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using AlertLooksTest = StoreFixture;

TEST_F(AlertLooksTest, GiveRowsTheTintOfTheFirstRuleAndTheTagsOfAll) {
    EmbeddedBackEnd backEnd(connectionsTo(store->path()));
    const auto ruleOf = [](const QString& name, const QString& query, int tint, const QString& tag) {
        AlertRule rule;
        rule.name = name;
        rule.query = query;
        rule.tint = tint;
        rule.tag = tag;
        return rule;
    };
    AlertRule gold = ruleOf(u"gold"_s, u"gold"_s, 2, {});
    const AlertRule metals = ruleOf(u"metals"_s, u"gold | tin -lead"_s, 3, u"METAL"_s);
    const AlertRule dear = ruleOf(u"dear"_s, u"dear"_s, 0, u"DEAR"_s);
    const AlertRule plain = ruleOf(u"plain"_s, u"copper"_s, 0, {});
    const auto take = [&](const QString& identity, const QString& title, int version = 0) {
        NewsItem item = newsItem(1, identity, at(9, version), title);
        item.version = version;
        EXPECT_TRUE(backEnd.takeIn(item));
    };
    const auto lookOf = [&](const QString& title) {
        std::vector<CHeadlineTable> table;
        backEnd.BKQNEWS_iGetHeadlineTable(1, table, 0, u"20260302"_s);
        std::vector<CHeadline> headlines;
        backEnd.BKQNEWS_iGetHeadline(1, headlines, table);
        for (const CHeadline& headline : headlines) {
            if (headline.title == title) {
                const HeadlineLook look = backEnd.lookOf(keyOf(headline));
                return QString::number(look.tint) + look.tag;
            }
        }
        return u"no headline"_s;
    };
    int told = 0;
    QObject::connect(&backEnd.lookTeller(), &LookTeller::changed, &backEnd.lookTeller(), [&] { ++told; });
    take(u"1"_s, u"Gold is dear"_s);
    take(u"2"_s, u"Tin"_s);
    take(u"3"_s, u"Copper"_s);
    EXPECT_EQ(lookOf(u"Gold is dear"_s), u"0"_s) << "nobody judges";
    backEnd.judgeLooksBy(looksBy({plain, dear, gold, metals}, backEnd));
    EXPECT_EQ(lookOf(u"Gold is dear"_s), u"2DEAR METAL"_s);
    EXPECT_EQ(lookOf(u"Tin"_s), u"3METAL"_s);
    EXPECT_EQ(lookOf(u"Copper"_s), u"0"_s);
    EXPECT_EQ(backEnd.lookOf({1, 99, 1}), HeadlineLook()) << "not there";
    take(u"2"_s, u"Tin, not lead"_s, 1);
    EXPECT_EQ(lookOf(u"Tin, not lead"_s), u"0"_s) << "what it says now counts";
    gold.isOn = false;
    backEnd.judgeLooksBy(looksBy({gold, dear}, backEnd));
    EXPECT_EQ(lookOf(u"Gold is dear"_s), u"0DEAR"_s);
    EXPECT_EQ(told, 2);
    EXPECT_FALSE(looksBy({gold}, backEnd)) << "nothing to look for";
    const AlertRule inStory = ruleOf(u"story"_s, u"story:mine"_s, 4, {});
    backEnd.judgeLooksBy(looksBy({plain, inStory}, backEnd));
    EXPECT_EQ(lookOf(u"Gold is dear"_s), u"0"_s);
    NewsItem copper = newsItem(1, u"4"_s, at(9, 30), u"Copper falls"_s);
    EXPECT_TRUE(backEnd.takeIn(copper));
    EXPECT_EQ(lookOf(u"Copper falls"_s), u"0"_s);
    EXPECT_TRUE(backEnd.lookOf(keyOf(CHeadlineTable{at(9, 30), 4, 1, 0, 0})).isWanted);
    EXPECT_TRUE(backEnd.takeStory({at(9, 30), 4, 1}, u"A mine closes."_s));
    EXPECT_EQ(lookOf(u"Copper falls"_s), u"4"_s) << "the story has come";
}

}  // namespace

}  // namespace wirepane
