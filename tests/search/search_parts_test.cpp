// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Conditions, keywords and recent searches, and what is kept of them.
#include "headline_list/language_keys.h"
#include "headline_list/list_index.h"
#include "headline_list/service_entry.h"
#include "host/contract/cfg_io.h"
#include "host/contract/search_choices.h"
#include "search/news_relate_symbol_quote_view.h"
#include "search/search_desk.h"
#include "search/search_edit2.h"
#include "tests/support/conditions.h"
#include "tests/support/fake_back_end.h"

#include <QInputMethodEvent>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

TEST(Keywords, OfACandidate) {
    struct Case {
        QString candidate;
        KeywordList keywords;
    };
    const Case cases[] = {
        {u"2330 Aster Chips"_s, {u"2330"_s, u"AsterChips"_s}},
        {u"[22]00700 Harbour  Holdings "_s, {u"00700"_s, u"HarbourHoldings"_s}},
        {u"[a]b]c d"_s, {u"b]c"_s, u"d"_s}},
        {u"Lonely"_s, {u"Lonely"_s}},
        {u"[16]Lonely"_s, {u"Lonely"_s}},
        {u"2330 "_s, {u"2330"_s}},
        {u"700 700"_s, {u"700"_s}},
        {u"[16]"_s, {}},
        {u" "_s, {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(keywordsOfCandidate(c.candidate), c.keywords) << c.candidate.toStdString();
}

TEST(RecentSearches, KeepTheTenLastThatAskDifferently) {
    RecentSearches recent;
    for (int i = 0; i < 11; ++i)
        keepRecentSearch(recent, condition({QString::number(i), u"x"_s}));
    ASSERT_EQ(recent.size(), 10U);
    EXPECT_EQ(recent.front().keywords.front(), u"1"_s);
    const RecentSearches before = recent;
    keepRecentSearch(recent, condition({u"x"_s, u"4"_s}));
    EXPECT_EQ(recent, before) << "the same keywords in another order";
    for (const CSearch& other : {condition({u"4"_s, u"x"_s}, 1), condition({u"4"_s, u"x"_s}, 0, 2),
                                 condition({u"4"_s}), condition({u"4"_s, u"X"_s})}) {
        keepRecentSearch(recent, other);
        EXPECT_EQ(recent.back(), other);
        EXPECT_EQ(recent.size(), 10U);
    }
}

TEST(SearchMemory, SurvivesTheSettingsWithWhateverItHolds) {
    const ViewSettingPath path{u"Layout"_s, 1, 2, u"TRVNewsCtrlView"_s};
    MemoryCfgIO settings;
    const SearchMemory memory{awkward,
                              {condition(awkward, 2, 2), condition({u"one"_s})},
                              {CNewsKey(2, {3, 7}, awkward), CNewsKey(1, {CNewsKey::everyNewsType}, {})},
                              {{condition(awkward, 1, 2), condition({u"two"_s, u"two"_s})}, 2}};
    memory.write(settings, path);
    const SearchMemory read = SearchMemory::read(settings, path);
    EXPECT_EQ(read.keywordPool, memory.keywordPool);
    EXPECT_EQ(read.recent, memory.recent);
    EXPECT_EQ(read.keySets, memory.keySets);
    EXPECT_EQ(read.warnings.items, memory.warnings.items);
    EXPECT_EQ(read.warnings.chosen, 2);

    settings.values[u"!RVNEWS_NEWSSEARCH_KEYWORD"_s] = QStringList{u"a"_s, {}, u"b"_s, u"a"_s};
    QStringList many{u"nonsense"_s, condition({u"x"_s, u"x"_s}).GetString()};
    for (int i = 0; i < 9; ++i)
        many.append(condition({QString::number(i)}).GetString());
    settings.values[u"!RVNEWS_NEWSSEARCH_NEARTENSEARCHINFO"_s] = many;
    settings.values[u"!RVNEWS_NEWSKEY_KEYWORDSETTING"_s] = QStringList{u"C:1"_s, u"C:1 T:3 K:a"_s};
    settings.values[u"WarningSearchItems"_s] =
        QStringList{u"nonsense"_s, condition({}).GetString(), condition({u"kept"_s}).GetString(),
                    condition({u"in force"_s}).GetString()};
    settings.values[u"WarningSearchItemOrder"_s] = 4;
    const SearchMemory damaged = SearchMemory::read(settings, path);
    EXPECT_EQ(damaged.keywordPool, (KeywordList{u"a"_s, u"b"_s}));
    ASSERT_EQ(damaged.recent.size(), 10U);
    EXPECT_EQ(damaged.recent.front().keywords, std::vector<QString>{u"x"_s}) << "once";
    EXPECT_EQ(damaged.recent.back().keywords, std::vector<QString>{u"8"_s});
    EXPECT_EQ(damaged.keySets, std::vector{CNewsKey(1, {3}, {u"a"_s})});
    ASSERT_NE(damaged.warnings.chosenItem(), nullptr);
    EXPECT_EQ(damaged.warnings.chosenItem()->keywords, std::vector<QString>{u"in force"_s});
    for (const int none : {-1, 0, 1, 2, 5}) {
        settings.values[u"WarningSearchItemOrder"_s] = none;
        EXPECT_EQ(SearchMemory::read(settings, path).warnings.chosen, 0) << none;
    }
}

TEST(SearchDesk, TellsAnswersApart) {
    FakeBackEnd backEnd;
    SearchDesk desk(backEnd);
    desk.ordinary = condition({u"a"_s, u"b"_s});
    desk.second = condition({u"s"_s});
    desk.warningTerm = condition({u"w"_s}, 2, 2);
    CSearch later = desk.ordinary;
    later.time = 99;
    CSearch narrowed = desk.ordinary;
    narrowed.symbols = {{16, u"2330"_s}};
    EXPECT_EQ(desk.kindOfAnswer(later), TableKind::Search) << "when it was composed does not count";
    EXPECT_EQ(desk.kindOfAnswer(desk.warningTerm), TableKind::Search);
    EXPECT_EQ(desk.kindOfAnswer(desk.second), TableKind::SecondSearch);
    EXPECT_EQ(desk.kindOfAnswer(narrowed), std::nullopt);
    EXPECT_EQ(desk.kindOfAnswer(condition({u"b"_s, u"a"_s})), std::nullopt) << "the order counts";

    desk.narrow(desk.ordinary, {16, u"2330"_s}, true);
    EXPECT_EQ(desk.ordinary, narrowed);
    EXPECT_TRUE(desk.second.symbols.empty());
    EXPECT_EQ(desk.kindOfAnswer(narrowed), TableKind::Search);
}

TEST(SearchDesk, AQuickSearchKeepsTheSymbolsOfItsOwnWord) {
    FakeBackEnd backEnd;
    SearchDesk desk(backEnd);
    const std::vector<CSymbolInfo> symbols{{16, u"2330"_s}};
    const std::tuple<QString, bool, std::vector<CSymbolInfo>> cases[] = {
        {u"tin"_s, true, {}}, {u"tin"_s, false, symbols}, {u"zinc"_s, true, {}}};
    for (const auto& [word, isOther, kept] : cases) {
        desk.ordinary.symbols = symbols;
        desk.ordinary.scope = numberOf(SearchScope::Stories);
        EXPECT_EQ(desk.takeSearchText(word), isOther);
        desk.takeQuickSearch(word, 99);
        CSearch expected = condition({word});
        expected.symbols = kept;
        EXPECT_EQ(desk.ordinary, expected);
        EXPECT_EQ(desk.ordinary.time, 99);
    }
    EXPECT_EQ(desk.searchHistory(), (std::vector{u"tin"_s, u"zinc"_s}));
}

TEST(SearchDesk, AnswersAreDueOnceFromWhoWasAskedLast) {
    FakeBackEnd backEnd;
    SearchDesk desk(backEnd);
    std::vector<ServiceEntry> services{{1, true}, {2, false}, {16, true}};
    const auto pending = [&] {
        QString result;
        for (const ServiceEntry& entry : services)
            result += entry.searchPending ? u'x' : u'.';
        return result;
    };
    const CSearch before = condition({u"before"_s});
    desk.ordinary = before;
    desk.sendSearch(ListIndex::Search, services, true, {5, 2});
    EXPECT_EQ(backEnd.asked.size(), 2);
    EXPECT_EQ(pending(), u"x.x"_s);
    EXPECT_TRUE(desk.takeAnswerDue(before, 1, 0));
    EXPECT_FALSE(desk.takeAnswerDue(before, 1, 0));
    EXPECT_FALSE(desk.takeAnswerDue(before, 2, 0)) << "not asked";
    EXPECT_TRUE(markAnswered(services, 1));
    EXPECT_FALSE(markAnswered(services, 16));
    desk.ordinary = condition({u"after"_s});
    desk.sendSearch(ListIndex::Search, services, false, {6, 3});
    EXPECT_EQ(pending(), u"..."_s) << "sent without waiting";
    EXPECT_FALSE(desk.takeAnswerDue(before, 16, 0)) << "its search was given up";
    EXPECT_TRUE(desk.takeAnswerDue(desk.ordinary, 16, 0));
    EXPECT_EQ(desk.sentAt(ListIndex::Search)->time, 6);
    desk.sendSearch(ListIndex::Search, services, true, {7, 3});
    EXPECT_TRUE(forgetPending(services));
    EXPECT_FALSE(forgetPending(services));
    EXPECT_EQ(pending(), u"..."_s);
}

TEST(RelatedQuotes, ASymbolWithoutAMarketIsThatOfTheFirstThatHasItsCode) {
    FakeBackEnd backEnd;
    backEnd.symbols = {{16, {{u"2330"_s, u"Aster"_s}}},
                       {22, {{u"2330"_s, u"Other"_s}, {u"700"_s, u"Bay"_s}}}};
    QWidget window;
    auto* quotes = new CNewsRelateSymbolQuoteView(&window);
    ASSERT_TRUE(quotes->CreateView(&window, u"quotes"_s, 0, 0));
    EXPECT_EQ(quotes->windowTitle(), u"IDS_QUOTE-SYMBOLGROUP_NEWSRELATEQUOTE"_s);
    const std::pair<CSymbolInfo, QString> cases[] = {{{0, u"2330"_s}, u"16:2330"_s},
                                                     {{1, u"2330"_s}, u"1:2330"_s},
                                                     {{22, u"2330"_s}, u"22:2330"_s},
                                                     {{0, u"700"_s}, u"22:700"_s},
                                                     {{0, u"9"_s}, u"0:9"_s}};
    for (const auto& [listed, followed] : cases) {
        quotes->setSymbolList({{listed}});
        EXPECT_EQ(backEnd.followed[quotes], QStringList{followed});
    }
    quotes->setSymbolList({});
    unsigned char market = 99;
    QString code = u"as before"_s;
    EXPECT_EQ(quotes->GetCurrSymbolInfo(market, code), 0);
    EXPECT_EQ(market, 99);
    EXPECT_EQ(code, u"as before"_s);
}

TEST(SearchEdit, TakesNoBlanksAndNothingPastedAndSaysSo) {
    struct Tips : ShortTips {
        void showTip(const QRect& rectangle, const QString& text) override {
            place = rectangle;
            told.append(text);
        }
        QRect place;
        QStringList told;
    };
    FakeBackEnd backEnd;
    Tips tips;
    SearchEdit2 edit;
    edit.setOwner(&tips);
    edit.setGeometry(30, 40, 200, 24);
    edit.show();
    QTest::keyClicks(&edit, u"a b"_s);
    QTest::keyClick(&edit, Qt::Key_Insert, Qt::ShiftModifier);
    QInputMethodEvent composed;
    composed.setCommitString(u"台 積"_s);
    QCoreApplication::sendEvent(&edit, &composed);
    EXPECT_EQ(edit.text(), u"ab台積"_s);
    EXPECT_EQ(tips.told, (QStringList{QString(keys::invalidValue), QString(keys::invalidPaste),
                                      QString(keys::invalidValue)}));
    EXPECT_EQ(tips.place, QRect(edit.mapToGlobal(QPoint(0, 0)), edit.size()));
    edit.setOwner(nullptr);
    QTest::keyClicks(&edit, u" c"_s);
    EXPECT_EQ(edit.text(), u"ab台積c"_s);
}

}  // namespace wirepane
