// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/rehearsal.h"

#include "backend/store/rehearsal_desk.h"
#include "backend/store/store_file.h"
#include "backend/store/store_reader.h"
#include "tests/backend/store/store_fixture.h"

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

constexpr std::int64_t daySeconds = 24 * 3600;

class RehearsalTest : public StoreFixture {
protected:
    void add(std::int64_t time, const QString& title, unsigned char service = 1) {
        NewsItem item = newsItem(service, u"n%1"_s.arg(++added), time, title);
        item.related = {{0, u"AAPL"_s}};
        item.story = u"The story of "_s + title;
        takeNews(item);
    }
    std::optional<Rehearsal> rehearsed(const QString& query, std::int64_t latest = at(23, 59),
                                       std::vector<unsigned char> services = {1, 2}) {
        StoreReader reader(*store);
        return rehearse(*store, query, {std::move(services), QDate(2026, 3, 2), 3, latest},
                        rehearsedNews(reader));
    }
    static QString wordsOf(const std::vector<Rehearsal::Word>& words) {
        QStringList texts;
        for (const Rehearsal::Word& word : words)
            texts += u"%1=%2"_s.arg(word.text).arg(word.hits);
        return texts.join(u", "_s);
    }
    static QString daysOf(const Rehearsal& rehearsal) {
        QStringList texts;
        for (const Rehearsal::Day& day : rehearsal.days)
            texts += u"%1=%2"_s.arg(day.day.day()).arg(day.hits);
        return texts.join(u' ');
    }

    int added = 0;
};

TEST_F(RehearsalTest, CountsByDayAndHourWhatIsWithinItsTime) {
    add(at(0, 0) - 2 * daySeconds - 1, u"Gold of the day before"_s);
    add(at(0, 0) - 2 * daySeconds, u"Gold opens"_s);
    add(at(9, 0), u"Gold"_s);
    add(at(9, 59), u"GOLD"_s, 2);
    add(at(10, 0), u"gold"_s);
    add(at(10, 1), u"golden"_s);
    add(at(23, 59, 59), u"Gold of the last second"_s);
    struct Expected {
        QString query;
        std::int64_t latest;
        std::vector<unsigned char> services;
        QString days;
        int tried;
        int over;  // hours with more than one
    };
    const Expected cases[] = {
        {u"gold"_s, at(23, 59, 59), {1, 2}, u"28=1 1=0 2=4"_s, 6, 1},
        {u"gold"_s, at(10, 0), {1, 2}, u"28=1 1=0 2=3"_s, 4, 1},
        {u"gold"_s, at(23, 59, 59), {1}, u"28=1 1=0 2=3"_s, 5, 0},
        {u"symbol:AAPL -gold"_s, at(23, 59, 59), {1, 2}, u"28=0 1=0 2=1"_s, 6, 0},
        {u"tin"_s, at(23, 59, 59), {1, 2}, u"28=0 1=0 2=0"_s, 6, 0},
    };
    for (const Expected& expected : cases) {
        const auto found = rehearsed(expected.query, expected.latest, expected.services);
        ASSERT_TRUE(found);
        EXPECT_EQ(daysOf(*found), expected.days) << expected.query.toStdString();
        EXPECT_EQ(found->tried, expected.tried);
        EXPECT_EQ(found->hoursOver(1), expected.over);
    }
    const auto found = rehearsed(u"gold"_s);
    EXPECT_EQ(found->hours.front().begin, at(9, 0));
    EXPECT_EQ(found->hits.front().time, at(10, 0));
    for (const QString& fault : {u""_s, u"gold |"_s, u"is:unread"_s})
        EXPECT_FALSE(rehearsed(fault)) << fault.toStdString();
}

TEST_F(RehearsalTest, LooksAtStoriesWhereAnAlertDoes) {
    add(at(9, 0), u"Gold"_s);
    add(at(9, 1), u"Tin"_s);
    const auto found = rehearsed(u"story:\"story of tin\" | title:copper"_s);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->titles, QStringList{u"Tin"_s});
    EXPECT_EQ(wordsOf(found->bringing), u"story:\"story of tin\"=1, title:copper=0"_s);
}

TEST_F(RehearsalTest, TriesPlainKeywordsWithWhatMatchesThemLive) {
    add(at(9, 0), u"Gold price"_s);
    add(at(9, 1), u"Golden"_s);
    add(at(9, 2), u"Tin"_s, 2);
    const auto wants = [](const QString& word) {
        return [word](const CHeadline& headline, const QString& symbol) {
            return headline.title.contains(word) || symbol == word;
        };
    };
    const std::int32_t type = 3;
    struct Expected {
        QString word;
        std::vector<std::int32_t> newsTypes;
        std::size_t hits;
    };
    const Expected cases[] = {{u"Gold"_s, {}, 2}, {u"AAPL"_s, {}, 3}, {u"Gold"_s, {type}, 0}};
    for (const auto& [word, newsTypes, hits] : cases) {
        const KeySetRehearsal::KeySet keySet{{}, wants(word), {{word, wants(word)}}, newsTypes, {}};
        const auto found = rehearse(*store, keySet, {{1, 2}, QDate(2026, 3, 2), 3, at(23, 59)}, {});
        ASSERT_TRUE(found);
        EXPECT_EQ(found->hits.size(), hits) << word.toStdString();
        EXPECT_EQ(wordsOf(found->bringing), u"%1=%2"_s.arg(word).arg(hits));
    }
    const std::atomic<bool> dropped = true;
    EXPECT_FALSE(rehearse(*store, {u"gold"_s, {}, {}, {}, {}},
                          {{1, 2}, QDate(2026, 3, 2), 3, at(23, 59), &dropped}, {}));
}

// What is promised of an exclusion is what a query with it has fewer.
TEST_F(RehearsalTest, TellsWhatBringsItAndWhatAnExclusionSaves) {
    for (int i = 0; i < 12; ++i) {
        add(at(9, i), i % 3 == 0 ? u"Gold Mining shares, gold mining of today"_s : u"Gold price of today"_s);
        add(at(10, i), u"臺積電法說會%1"_s.arg(i));
        for (int k = 0; k < 8; ++k)
            add(at(11, i, k), u"Weather of today"_s);
    }
    const auto found = rehearsed(u"title:(gold | \"mining shares\") | 台积电 -tin"_s);
    ASSERT_TRUE(found);
    EXPECT_EQ(wordsOf(found->bringing), u"gold=12, 台积电=12, \"mining shares\"=4"_s);
    EXPECT_EQ(wordsOf(found->exclusions), u"法說=12, 說會=12, 電法=12, price=8"_s);
    for (const Rehearsal::Word& word : found->exclusions) {
        const auto without =
            rehearsed(u"(title:(gold | \"mining shares\") | 台积电 -tin) -\"%1\""_s.arg(word.text));
        ASSERT_TRUE(without);
        EXPECT_EQ(found->hits.size() - without->hits.size(), std::size_t(word.hits))
            << word.text.toStdString();
    }
}

}  // namespace
}  // namespace wirepane
