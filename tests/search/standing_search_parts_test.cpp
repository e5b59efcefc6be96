// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Key sets and warning items without their dialogs.
#include "search/key_set_text.h"
#include "search/key_sets.h"
#include "search/warn_term_config_dlg.h"
#include "search/warning_items.h"
#include "tests/support/conditions.h"
#include "tests/support/fake_back_end.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

std::vector<QString> firstWords(const WarningItems& warnings) {
    std::vector<QString> words;
    for (const CSearch& item : warnings.items)
        words.push_back(item.keywords.front());
    return words;
}

}  // namespace

TEST(KeySetText, IsReadBackAsItWasWritten) {
    struct Case {
        CNewsKey keySet;
        QString text;
    };
    const Case cases[] = {
        {{1, {3, 7}, {u"A"_s, u"B"_s}}, u"C:1 T:3,7 K:A,B"_s},
        {{2, {CNewsKey::everyNewsType}, {u"rate cut"_s}}, u"C:2 T:-999 K:rate cut"_s},
        {{0, {}, {}}, u"C:0 T: K:"_s},
        {{1, {1}, {u"a,b"_s, u"c\\"_s, u"\\,"_s}}, u"C:1 T:1 K:a\\,b,c\\\\,\\\\\\,"_s},
        {{1, {1}, {u"x K:y"_s, u" K:"_s, u"K:z"_s}}, u"C:1 T:1 K:x\\ K:y,\\ K:,K:z"_s},
        {{1, {1}, {u" T:5"_s, u"聯儲局"_s, u"\n"_s}}, u"C:1 T:1 K: T:5,聯儲局,\n"_s},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(textOfKeySet(c.keySet), c.text);
        EXPECT_EQ(keySetOfText(c.text), c.keySet) << c.text.toStdString();
    }
    CNewsKey query(1, {3}, {u"a, -\"b K:c\""_s});
    query.language = SearchLanguage::Query;
    EXPECT_EQ(textOfKeySet(query), u"L:1 C:1 T:3 K:a\\, -\"b\\ K:c\""_s);
    EXPECT_EQ(keySetOfText(textOfKeySet(query)), query);
    EXPECT_EQ(keySetOfText(u"C:1 T:1 K:a K:b,c"_s), CNewsKey(1, {1}, {u"a K:b"_s, u"c"_s}))
        << "a form from before there were backslashes";
}

TEST(KeySetText, IsRejectedWholeWhenItIsDamaged) {
    for (const QString& text : {QString(), u"C:1"_s, u"C:1 T:3"_s, u"C:1 K:A"_s, u"C: T:3 K:A"_s,
                                u"C:x T:3 K:A"_s, u"C:1  T:3 K:A"_s, u"C:1 T:3, K:A"_s, u"C:1 T:3,x K:A"_s,
                                u"C:1 T:03 K:A"_s, u"C:1 T:99999999999 K:A"_s, u"C:1 T:3 K:A,,B"_s,
                                u"C:1 T:3 K:A,"_s, u"C:1 T:3 K:A\\"_s, u" C:1 T:3 K:A"_s, u"T:3 C:1 K:A"_s,
                                u"C:1 K:A T:3"_s, u"L:1 C:1 T:3 K:A,B"_s, u"L:2 C:1 T:3 K:A"_s})
        EXPECT_EQ(keySetOfText(text), std::nullopt) << text.toStdString();
}

TEST(KeySets, TakeTheNewsTypesOfAllServicesButWarrants) {
    FakeBackEnd backEnd;
    backEnd.categories[1] = {{u"3"_s, u"Markets"_s}, {u"-2"_s, u"Flash"_s}};
    backEnd.categories[2] = {{u"3"_s, u"Other name"_s}, {u"7"_s, u"Deals"_s}};
    backEnd.categories[52] = {{u"9"_s, u"Issue"_s}};
    const ServiceEntry services[] = {{52}, {1}, {22}, {2}};
    EXPECT_EQ(newsTypesOf(backEnd, services),
              (CategoryMap{{-2, u"Flash"_s}, {3, u"Markets"_s}, {7, u"Deals"_s}}));
    EXPECT_EQ(newsTypesOf(backEnd, {}), CategoryMap());
    backEnd.categories[2].back().second = u"資券新聞"_s;
    backEnd.simplifiedServices = {2};
    EXPECT_EQ(newsTypesOf(backEnd, services).at(7), u"資券新聞"_s) << "whatever the name's own service";
    backEnd.simplifiedServices = {52};
    EXPECT_EQ(newsTypesOf(backEnd, services).at(7), u"资券新闻"_s) << "as the first service has it";
}

TEST(KeySets, AreSavedOnceAndWorkedOnInPlace) {
    const CNewsKey a(1, {3, 7}, {u"A"_s});
    const CNewsKey otherMethod(2, {3, 7}, {u"A"_s});
    const CNewsKey otherOrder(1, {7, 3}, {u"A"_s});
    const CNewsKey otherWords(1, {3, 7}, {u"a"_s});
    std::vector<CNewsKey> keySets;
    int row = 0;
    for (const CNewsKey& keySet : {a, otherMethod, otherOrder, otherWords})
        EXPECT_EQ(saveKeySet(keySets, keySet, -1), row++);
    EXPECT_EQ(saveKeySet(keySets, otherOrder, -1), 2) << "it is there already";
    EXPECT_EQ(saveKeySet(keySets, a, 4), -1);
    EXPECT_EQ(keySets, (std::vector{a, otherMethod, otherOrder, otherWords}));
    EXPECT_EQ(saveKeySet(keySets, a, 3), 3);
    EXPECT_EQ(rowsOfEqual(keySets, std::vector{a, otherWords}), (std::vector{0, 3}));
}

TEST(KeySets, ShowWhatTheyWant) {
    FakeBackEnd backEnd;
    const QString all = u"IDS_DIALOG-DEAL-SEARCH_AND_BUTTON"_s;
    const QString any = u"IDS_DIALOG-DEAL-SEARCH_OR_BUTTON"_s;
    const QString every = u"IDS_DIALOG-DEAL-SEARCH_ALL_NEWSTYPE"_s;
    const CategoryMap types{{3, u"Markets"_s}, {7, u"Deals"_s}};
    const std::int32_t wanted = CNewsKey::everyNewsType;
    struct Case {
        CNewsKey keySet;
        QStringList texts;
    };
    const Case cases[] = {
        {{1, {7}, {u"A"_s, u"B C"_s}}, {all, u"Deals "_s, u"A, B C"_s}},
        {{2, {7, 3}, {}}, {any, every, {}}},
        {{0, {wanted}, {u"A"_s}}, {any, every, u"A"_s}},
        {{1, {99}, {u"A"_s}}, {all, {}, u"A"_s}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(textsOfKeySet(c.keySet, types), c.texts) << c.texts.join(u'|').toStdString();

    const std::vector<CNewsKey> stored{{1, {wanted}, {}}, {1, {wanted, 3}, {}}, {1, {99}, {}}};
    const std::vector<CNewsKey> spelledOut = withNewsTypes(stored, types);
    EXPECT_EQ(spelledOut[0].newsTypes, (std::vector{3, 7}));
    EXPECT_EQ(spelledOut[1], stored[1]);
    EXPECT_EQ(spelledOut[2], stored[2]);
    EXPECT_EQ(withNewsTypes(stored, {}), stored) << "every does not become none";
}

TEST(WarningItems, TakeTheKeywordsOfALine) {
    EXPECT_EQ(keywordsOfText(u" gold,, oil\nrate cut ,gold"_s),
              (std::vector{u"gold"_s, u"oil"_s, u"rate"_s, u"cut"_s, u"gold"_s}));
    EXPECT_EQ(keywordsOfText(u" ,\n"_s), std::vector<QString>());
}

TEST(WarningItems, TheNumberInForceStaysWithItsItem) {
    WarningItems warnings{{condition({u"a"_s}), condition({u"b"_s}), condition({u"c"_s})}, 2};
    EXPECT_FALSE(warnings.add(condition({})));
    EXPECT_FALSE(warnings.replace(0, condition({u"a"_s}))) << "nothing was changed";
    EXPECT_FALSE(warnings.replace(0, condition({}))) << "nothing is lost";
    EXPECT_FALSE(warnings.replace(3, condition({u"z"_s})));
    warnings.remove(-1);
    EXPECT_EQ(firstWords(warnings), (std::vector{u"a"_s, u"b"_s, u"c"_s}));

    EXPECT_TRUE(warnings.replace(0, condition({u"a"_s}, 1))) << "the scope alone is a change";
    EXPECT_EQ(firstWords(warnings), (std::vector{u"b"_s, u"c"_s, u"a"_s}));
    EXPECT_EQ(warnings.chosen, 1);
    EXPECT_TRUE(warnings.replace(0, condition({u"B"_s})));
    EXPECT_EQ(warnings.chosenItem()->keywords.front(), u"B"_s);
    warnings.remove(0);
    EXPECT_EQ(warnings.chosen, 2);
    warnings.remove(1);
    EXPECT_EQ(warnings.chosen, 0);
    EXPECT_EQ(warnings.chosenItem(), nullptr);
    EXPECT_EQ(firstWords(warnings), std::vector{u"a"_s});
}

TEST(WarningItems, AConditionTakesWhatTheChosenItemAsksFor) {
    struct Case {
        CSearch item;
        CSearch expected;
        std::size_t items;
    };
    const Case cases[] = {
        {condition({u"a"_s, u"b"_s}, 1, 2), condition({u"a"_s, u"b"_s}, 1, 2), 2},
        {condition({u"a"_s}, 7, 1), condition({u"a"_s}, 2, 1), 3},
        {condition({u"a"_s}, 0, 0), condition({u"a"_s}, 0, 2), 3},
        {condition({u"y"_s, u"x"_s}, 0, 0), condition({u"y"_s, u"x"_s}, 0, 2), 2},
    };
    for (const Case& c : cases) {
        WarningItems warnings{{condition({u"x"_s, u"y"_s}, 0, 2), c.item}, 0};
        CSearch inForce = condition({u"before"_s}, 0, 2);
        inForce.symbols = {{16, u"2330"_s}};
        warnings.choose(1, inForce);
        EXPECT_EQ(inForce, c.expected);
        EXPECT_EQ(warnings.chosen, 2);
        ASSERT_EQ(warnings.items.size(), c.items);
        EXPECT_EQ(warnings.items.back(), c.items == 3 ? c.expected : c.item) << "new where it asks for more";
    }
}

}  // namespace wirepane
