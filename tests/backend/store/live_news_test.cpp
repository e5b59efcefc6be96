// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the receivers of a back end hear of news that comes late, in bursts, or from another program.
#include "backend/store/embedded_back_end.h"
#include "backend/store/held_changes.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "backend/store/stored_day.h"
#include "host/contract/clock.h"
#include "tests/backend/store/listener.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/backend/store/take_all.h"
#include "tests/support/conditions.h"

#include <QCoreApplication>
#include <QTest>

#include <optional>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class LiveNewsTest : public StoreFixture {
public:
    LiveNewsTest() : backEnd(connectionsTo(store->path())) {
        host_clock::startAt(at(12, 0));
        backEnd.forgetNewsDays();
        backEnd.attach(&listener);
    }
    ~LiveNewsTest() override { backEnd.detach(&listener); }

protected:
    void takeIn(const NewsItem& item) {
        const Result<TakeOutcome> outcome = backEnd.takeIn(item);
        ASSERT_TRUE(outcome && outcome.value().take == Take::TakenIn);
    }
    static NewsItem again(NewsItem item, const QString& title) {
        item.title = title;
        ++item.version;
        return item;
    }
    QStringList heard() { return std::exchange(listener.heard, {}); }
    int entriesOfToday() {
        std::vector<CHeadlineTable> table;
        return backEnd.BKQNEWS_iGetHeadlineTable(1, table, 0, u"20260302"_s);
    }

    EmbeddedBackEnd backEnd;
    Listener listener;
};

TEST_F(LiveNewsTest, WhatABreakKeptAwayComesOldestFirstAndOnce) {
    const NewsItem known = newsItem(1, u"known"_s, at(9, 30), u"Known"_s);
    takeIn(known);
    heard();
    backEnd.setConnected(false);
    takeIn(newsItem(1, u"b"_s, at(11, 0), u"Later"_s));
    takeIn(newsItem(2, u"a"_s, at(10, 0), u"Earlier"_s));
    takeIn(again(known, u"Corrected"_s));
    NewsItem twice = newsItem(1, u"c"_s, at(11, 30), u"First words"_s);
    takeIn(twice);
    takeIn(again(twice, u"Last words"_s));
    EXPECT_EQ(heard(), QStringList{});

    backEnd.setConnected(true);
    EXPECT_EQ(heard(), (QStringList{u"headline 1/1 Corrected [0] "_s, u"headline 2/1 Earlier [0] "_s,
                                    u"headline 1/2 Later [0] "_s, u"headline 1/3 Last words [0] "_s}));
    EXPECT_EQ(backEnd.lateHeadlines(), 4);
    backEnd.setConnected(true);
    backEnd.setConnected(false);
    backEnd.setConnected(true);
    EXPECT_EQ(heard(), QStringList{});
    EXPECT_EQ(backEnd.lateHeadlines(), 0);
}

// A program that was killed had yet to make it.
TEST_F(LiveNewsTest, WhatAKilledImportHadToChangeIsToldOnce) {
    const NewsItem known = newsItem(1, u"known"_s, at(9, 30), u"Known"_s);
    takeNews(known);
    backEnd.checkForNews();
    EXPECT_EQ(heard().size(), 1);
    HeldChanges changes(*store);
    ASSERT_TRUE(writer->begin() && changes.add(again(known, u"Corrected"_s)) && changes.makeDue() &&
                writer->commit());
    EXPECT_TRUE(QTest::qWaitFor([this] {
        backEnd.checkForNews();
        return !listener.heard.isEmpty();
    }));
    EXPECT_EQ(heard(), QStringList{u"headline 1/1 Corrected [0] "_s});
    EXPECT_EQ(dueChanges(*store), 0);
}

TEST_F(LiveNewsTest, WhatAnotherProgramWritesIsToldInTheOrderOfComing) {
    takeNews(newsItem(1, u"a"_s, at(11, 0), u"A"_s));
    takeNews(newsItem(1, u"b"_s, at(10, 0), u"B"_s));
    NewsItem story = newsItem(1, u"b"_s, at(10, 0), u"B"_s);
    story.story = u"Text"_s;
    EXPECT_EQ(entriesOfToday(), 0) << "not before it is told";
    backEnd.checkForNews();
    EXPECT_EQ(entriesOfToday(), 2);
    EXPECT_EQ(heard(), (QStringList{u"headline 1/1 A [0] "_s, u"headline 1/2 B [0] "_s}));
    takeNews(story);
    takeNews(newsItem(1, u"c"_s, at(9, 0), u"C"_s));
    // The back end's own news finds the others before it, and has their numbers.
    takeIn(newsItem(1, u"d"_s, at(9, 0), u"D"_s));
    EXPECT_EQ(heard(), (QStringList{u"story 2"_s, u"headline 1/3 C [0] "_s, u"headline 1/4 D [0] "_s}));
    backEnd.checkForNews();
    EXPECT_EQ(heard(), QStringList{});
    EXPECT_EQ(entriesOfToday(), 4);
}

// A day is a million headlines at times, and an import beside the terminal commits every second.
TEST_F(LiveNewsTest, ADayFollowsWhatOthersWriteAndIsNotReadAgain) {
    takeIn(newsItem(1, u"a"_s, at(11, 0), u"A"_s));
    EXPECT_EQ(entriesOfToday(), 1);
    // Outside the rules: only who reads the day again finds it.
    ASSERT_TRUE(
        store->execute("INSERT INTO all_headlines(service, time, sequence, day, category, version, "
                       "received, identity, title) SELECT 1, time + 1, 99, day, 1, 0, 0, 'x', 'X' "
                       "FROM all_headlines"));
    takeNews(newsItem(1, u"b"_s, at(10, 0), u"B"_s));
    takeIn(newsItem(1, u"c"_s, at(9, 0), u"C"_s));
    EXPECT_EQ(entriesOfToday(), 3);
}

// By itself, by another program, and in an outage, at whose end the last word counts.
TEST_F(LiveNewsTest, AKeyThatReplacedNewsHasLostIsToldAsGone) {
    constexpr std::int64_t day = 86400;
    NewsItem item = newsItem(1, u"a"_s, at(11, 0), u"A"_s);
    const auto correct = [&item](std::int64_t time, const QString& title) {
        item = again(item, title);
        item.time = time;
        return item;
    };
    takeIn(item);
    takeIn(correct(at(11, 0), u"Same key"_s));
    heard();
    takeIn(correct(at(10, 0), u"Earlier"_s));
    EXPECT_EQ(heard(), (QStringList{u"headline 1/1 Earlier [0] "_s, u"gone 1/1 11:00"_s}));
    takeNews(correct(at(9, 0), u"By another"_s));
    backEnd.checkForNews();
    EXPECT_EQ(heard(), (QStringList{u"headline 1/1 By another [0] "_s, u"gone 1/1 10:00"_s}));

    backEnd.setConnected(false);
    takeIn(correct(at(8, 0) - day, u"Yesterday's"_s));
    takeIn(correct(at(7, 0), u"Today's after all"_s));
    takeIn(correct(at(9, 0), u"As before"_s));
    EXPECT_EQ(heard(), QStringList{});
    backEnd.setConnected(true);
    // Its first key, at nine, was told in the meantime and is its last one too, by another number.
    EXPECT_EQ(heard(), (QStringList{u"headline 1/2 As before [0] "_s, u"gone 1/1 09:00"_s,
                                    u"gone 1/1 08:00"_s, u"gone 1/2 07:00"_s}));
    EXPECT_EQ(backEnd.lateHeadlines(), 1);

    // Another day's is not pushed: whoever lists it is told that it has been replaced.
    listener.replaced.clear();
    takeIn(correct(at(9, 0) - day, u"Yesterday's again"_s));
    takeIn(correct(at(9, 0) - day, u"In other words"_s));
    EXPECT_FALSE(heard().join(u'|').contains(u"headline"_s));
    EXPECT_EQ(listener.replaced, (QStringList{u"1/2 Yesterday's again"_s, u"1/2 In other words"_s}));
}

TEST_F(LiveNewsTest, AReaderOfAnEarlierMomentSeesNothingOfTheFuture) {
    int version = 0;
    const auto put = [&](const QString& identity, std::int64_t time) {
        NewsItem item = newsItem(1, identity, time, u"Tea "_s + identity);
        item.version = ++version;
        item.categoryId = 1;
        item.related = {{16, u"2330"_s}};
        takeIn(item);
    };
    put(u"morning"_s, at(9, 0));
    put(u"noon"_s, at(12, 0));
    put(u"evening"_s, at(18, 0));
    put(u"night"_s, at(23, 59));
    heard();
    CSearch tea;
    tea.keywords = {u"tea"_s};
    tea.method = 1;
    const auto search = [&] {
        heard();
        backEnd.BKQNEWS_bSearchNews(1, 3, tea);
        while (heard().isEmpty())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    };
    const auto counts = [this] {
        std::vector<CHeadlineTable> day, category, symbol, found;
        backEnd.BKQNEWS_iGetHeadlineTable(1, day, 0, u"20260302"_s);
        backEnd.BKQNEWS_iGetHeadlineTable(1, category, 1, u"1"_s);
        backEnd.BKQNEWS_iGetHeadlineTable(symbol, 1, {16, u"2330"_s});
        backEnd.BKQNEWS_iGetHeadlineTable(1, found, 3, u"SEARCH"_s);
        return std::vector<std::size_t>{day.size(), category.size(), symbol.size(), found.size()};
    };
    search();
    EXPECT_EQ(counts(), (std::vector<std::size_t>(4, 4))) << "nothing is held back by itself";

    struct Case {
        LaterNews::Held held;
        int aheadAtOnce;  // of what comes live and is dated ahead
        QStringList told;
    };
    const QString live = u"headline 1/5 Tea live [1] 2330"_s;
    const Case cases[] = {{LaterNews::Held::Stored, 1, {live}}, {LaterNews::Held::All, 0, {}}};
    for (const Case& c : cases) {
        host_clock::startAt(at(12, 0));
        backEnd.holdLaterNews(c.held);
        search();
        EXPECT_EQ(counts(), (std::vector<std::size_t>(4, 2)));
        put(u"live"_s, at(19, 0));
        backEnd.checkForNews();
        EXPECT_EQ(heard(), c.told);
        EXPECT_EQ(entriesOfToday(), 2 + c.aheadAtOnce);

        // As the clock runs, headlines come as they did, each once.
        host_clock::startAt(at(18, 30));
        EXPECT_EQ(entriesOfToday(), 2 + c.aheadAtOnce) << "not before it is told";
        backEnd.setConnected(false);
        backEnd.checkForNews();
        EXPECT_EQ(heard(), QStringList{}) << "nothing comes in an outage";
        backEnd.setConnected(true);
        backEnd.checkForNews();
        EXPECT_EQ(heard(), QStringList{u"headline 1/3 Tea evening [1] 2330"_s});
        host_clock::startAt(at(19, 30));
        backEnd.checkForNews();
        EXPECT_EQ(heard(), c.told.isEmpty() ? QStringList{live} : QStringList{});
        search();
        EXPECT_EQ(counts(), (std::vector<std::size_t>(4, 4)));
    }
    backEnd.holdLaterNews(LaterNews::Held::Nothing);
    EXPECT_EQ(counts(), (std::vector<std::size_t>(4, 5)));
}

TEST_F(LiveNewsTest, NoQueryFindsWhatIsLaterThanThePresentMoment) {
    for (const int hour : {9, 11, 14, 18}) {
        NewsItem item = newsItem(1, QString::number(hour), at(hour, 0), u"Tea prices rise"_s);
        item.story = u"Black tea is dear."_s;
        item.category = u"Market"_s;
        item.related = {{16, u"2330"_s}};
        takeIn(item);
    }
    host_clock::startAt(at(12, 0));
    backEnd.holdLaterNews(LaterNews::Held::All);
    for (const char16_t* const query :
         {u"tea", u"\"tea prices\"", u"-coffee", u"coffee | tea", u"(tea rise) -silver", u"title:tea",
          u"story:tea", u"topic:Market", u"service:1", u"symbol:2330", u"from:today", u"to:today",
          u"on:2026-03-02", u"pri*", u"tea NEAR rise", u"from:2026 to:2027", u"-(from:today coffee)"}) {
        CSearch asked = condition({QString::fromUtf16(query)}, 2);
        asked.language = SearchLanguage::Query;
        heard();
        backEnd.BKQNEWS_bSearchNews(1, 3, asked);
        while (heard().isEmpty())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        std::vector<CHeadlineTable> found;
        backEnd.BKQNEWS_iGetHeadlineTable(1, found, 3, u"SEARCH"_s);
        const auto timesOf = [](const std::vector<CHeadlineTable>& entries) {
            std::vector<std::int64_t> times;
            for (const CHeadlineTable& entry : entries)
                times.push_back(entry.time);
            return times;
        };
        const std::vector<std::int64_t> present{at(11, 0), at(9, 0)};
        EXPECT_EQ(timesOf(found), present) << qPrintable(asked.query());
        std::optional<std::vector<CHeadlineTable>> newest;
        const auto kept = backEnd.findNewest(asked, {1}, 2, [&](const auto& told, bool) { newest = told; });
        ASSERT_TRUE(QTest::qWaitFor([&] { return newest.has_value(); }));
        EXPECT_EQ(timesOf(*newest), present) << "later ones took the places: " << qPrintable(asked.query());
    }
}

TEST_F(LiveNewsTest, ASourceWhoseClockIsOffIsToldOf) {
    QStringList ahead;
    backEnd.onDatedAhead([&](unsigned char service, std::int64_t time) {
        ahead += u"%1 by %2 s"_s.arg(service).arg(time - host_clock::now());
    });
    takeIn(newsItem(1, u"a"_s, host_clock::now() + 100, u"A"_s));
    takeIn(newsItem(1, u"b"_s, host_clock::now() - 9999, u"B"_s));
    EXPECT_EQ(ahead, QStringList{});
    takeIn(newsItem(2, u"c"_s, host_clock::now() + 3600, u"C"_s));
    EXPECT_EQ(ahead.size(), 1);
    EXPECT_TRUE(ahead.join(QString()).startsWith(u"2 by 3"_s));
    EXPECT_EQ(heard().size(), 3) << "it is shown all the same";
    backEnd.holdLaterNews(LaterNews::Held::Stored);
    takeIn(newsItem(2, u"d"_s, host_clock::now() + 3600, u"D"_s));
    EXPECT_EQ(ahead.size(), 1) << "a clock that was set is no measure";
}

TEST_F(LiveNewsTest, ABurstIsOneTransactionAndIsToldInBatches) {
    constexpr int burst = 1700;
    std::vector<NewsItem> items;
    for (int i = 0; i < burst; ++i)
        items.push_back(newsItem(1, QString::number(i), at(10, 0, i % 60), u"N"_s));
    ASSERT_TRUE(takeAll(backEnd, items, [this] {
        EXPECT_EQ(rows("SELECT count(*) FROM headlines"), QStringList{u"0"_s});
        EXPECT_EQ(heard(), QStringList{});
    }));
    EXPECT_EQ(entriesOfToday(), burst);
    EXPECT_LT(listener.heard.size(), burst);
    EXPECT_FALSE(backEnd.isDelivered());
    // An outage in the middle of the batches loses none.
    backEnd.setConnected(false);
    QCoreApplication::processEvents();
    const auto before = listener.heard.size();
    QCoreApplication::processEvents();
    EXPECT_EQ(listener.heard.size(), before);
    backEnd.setConnected(true);
    while (!backEnd.isDelivered())
        QCoreApplication::processEvents();
    ASSERT_EQ(listener.heard.size(), burst);
    EXPECT_TRUE(listener.heard.constLast().startsWith(u"headline 1/1700 "_s));

    // What is taken back is told to nobody.
    heard();
    backEnd.run([](StoreWriter& taking) {
        ASSERT_TRUE(taking.begin());
        ASSERT_TRUE(taking.take(newsItem(1, u"x"_s, at(10, 0), u"X"_s)));
        taking.rollback();
    });
    backEnd.checkForNews();
    EXPECT_EQ(heard(), QStringList{});
    EXPECT_EQ(entriesOfToday(), burst);
}

// Two terminals, each with its own feed, taking in by turns: single items, batches, corrections.
TEST_F(LiveNewsTest, TwoTerminalsOnOneStoreLoseNothingAndHearEachOther) {
    const auto opened = EmbeddedBackEnd::open(store->path());
    ASSERT_TRUE(opened);
    EmbeddedBackEnd& other = *opened.value();
    Listener otherListener;
    other.attach(&otherListener);
    std::mt19937 random(20260302);
    for (int i = 0; i < 300; ++i) {
        EmbeddedBackEnd& taking = random() % 2 == 0 ? backEnd : other;
        taking.run([&](StoreWriter& into) {
            ASSERT_TRUE(into.begin());
            for (unsigned left = random() % 4; left-- > 0;) {
                const auto number = static_cast<int>(random() % 200);
                NewsItem item =
                    newsItem(1, QString::number(number), at(10, 0, number % 60), u"Title %1"_s.arg(i));
                item.version = i;
                ASSERT_TRUE(into.take(item));
            }
            if (random() % 8 == 0)
                into.rollback();
            else
                ASSERT_TRUE(into.commit());
        });
        if (random() % 4 == 0) {
            backEnd.checkForNews();
            other.checkForNews();
        }
    }
    backEnd.checkForNews();
    other.checkForNews();
    std::vector<CHeadlineTable> mine;
    std::vector<CHeadlineTable> theirs;
    backEnd.BKQNEWS_iGetHeadlineTable(1, mine, 0, u"20260302"_s);
    other.BKQNEWS_iGetHeadlineTable(1, theirs, 0, u"20260302"_s);
    EXPECT_GT(mine.size(), 100u);
    EXPECT_TRUE(
        std::equal(mine.begin(), mine.end(), theirs.begin(), theirs.end(),
                   [](const CHeadlineTable& a, const CHeadlineTable& b) { return keyOf(a) == keyOf(b); }));
    EXPECT_EQ(rows("SELECT count(*) FROM headlines"), QStringList{QString::number(mine.size())});
    const QStringList titles = rows("SELECT sequence, title FROM headlines");
    for (const QString& row : titles) {
        const QString said = u"headline 1/%1 %2 [0] "_s.arg(row.section(u'|', 0, 0), row.section(u'|', 1));
        EXPECT_TRUE(listener.heard.contains(said)) << row.toStdString();
        EXPECT_TRUE(otherListener.heard.contains(said)) << row.toStdString();
    }
    EXPECT_EQ(StoreChecker(store->path()).check().value(), QStringList{});
    other.detach(&otherListener);
}

TEST_F(LiveNewsTest, AClockThatIsSetNumbersAndTellsNewsAllTheSame) {
    const std::int64_t day = 86400;
    struct Step {
        std::int64_t clock;
        std::int64_t newsTime;
        QStringList said;
    };
    const Step steps[] = {
        {at(12, 0), at(11, 0), {u"headline 1/1 N [1] "_s}},
        {at(12, 0) - 2 * day, at(11, 30), {}},           // of a day to come
        {at(12, 0) - 2 * day, at(11, 0) - 2 * day, {}},  // of a day that is over when it is told
        {at(12, 0) + 300 * day,
         at(11, 0) + 300 * day,
         {u"day 20261227 of 1"_s, u"headline 1/1 N [1] "_s}},  // beyond the range of tables
        {at(12, 1), at(10, 0), {}},                            // of a day long before the service's
    };
    int number = 0;
    QStringList said;
    for (const Step& step : steps) {
        host_clock::startAt(step.clock);
        NewsItem item = newsItem(1, QString::number(++number), step.newsTime, u"N"_s);
        item.categoryId = 1;
        backEnd.setConnected(number != 3);  // the third waits for the connection
        takeIn(item);
        said += step.said;
        if (number != 3) {
            EXPECT_EQ(heard(), std::exchange(said, {})) << number;
        }
    }
    EXPECT_EQ(entriesOfToday(), 3);
    EXPECT_EQ(rows("SELECT position, headline FROM arrivals ORDER BY position"),
              (QStringList{u"1|1"_s, u"2|2"_s, u"3|3"_s, u"4|4"_s, u"5|5"_s}));
    const auto ofCategory = [&](std::int64_t clock) {
        host_clock::startAt(clock);
        std::vector<CHeadlineTable> table;
        return backEnd.BKQNEWS_iGetHeadlineTable(1, table, 1, u"1"_s);
    };
    EXPECT_EQ(ofCategory(at(12, 0)), 5);
    EXPECT_EQ(ofCategory(at(12, 0) - 2 * day), 5) << "news that is dated ahead is not held back";
    EXPECT_EQ(ofCategory(at(12, 0) + 300 * day), 1);
    EXPECT_EQ(StoreChecker(store->path()).check().value(), QStringList{});
}

TEST_F(LiveNewsTest, AStoryCanComeAfterItsHeadlineAndChange) {
    takeIn(newsItem(1, u"a"_s, at(10, 0), u"Merger of Taishin"_s));
    heard();
    const CHeadlineTable entry{at(10, 0), 1, 1, 0, 0};
    const HeadlineKey key = keyOf(entry);
    const auto put = [&](const HeadlineKey& of, const QString& text) {
        const Result<TakeOutcome> outcome = backEnd.takeStory(of, text);
        EXPECT_TRUE(outcome);
        return outcome.value().take;
    };
    EXPECT_EQ(put(key, u"Wording one"_s), Take::TakenIn);
    EXPECT_EQ(put(key, u"Wording@@@@two"_s), Take::TakenIn);
    EXPECT_EQ(put({at(10, 0), 2, 1}, u"Nobody's"_s), Take::Rejected);
    EXPECT_EQ(put(key, QString(5'000'000, u'x')), Take::Rejected);
    backEnd.announceStoryChange(key);
    EXPECT_EQ(heard(), (QStringList{u"story 1"_s, u"story 1"_s, u"changed story 1"_s}));
    CStory story;
    ASSERT_TRUE(backEnd.BKQNEWS_bGetStory(story, entry));
    EXPECT_EQ(story.text, u"Wording@@@@two"_s);
    EXPECT_EQ(backEnd.receivedTime(key), at(12, 0));
    EXPECT_EQ(backEnd.receivedTime({at(10, 0), 2, 1}), std::nullopt);
    EXPECT_EQ(StoreChecker(store->path()).check().value(), QStringList{});
}

TEST_F(LiveNewsTest, ThatThereIsNoStoryIsToldBeforeItCanBeHad) {
    takeIn(newsItem(1, u"none"_s, at(10, 0), u"Flash"_s));
    NewsItem promised = newsItem(1, u"promised"_s, at(10, 1), u"Alert"_s);
    promised.story.reset();
    takeIn(promised);
    heard();
    const CHeadlineTable none{at(10, 0), 1, 1, 0, 0};
    const CHeadlineTable awaited{at(10, 1), 2, 1, 0, 0};
    const CHeadlineTable unknown{at(10, 2), 9, 1, 0, 0};
    // What a look-up at each telling finds: the text, "-" for nothing.
    CStory story;
    QStringList found;
    listener.onStory = [&](const CHeadlineTable& entry) {
        found += backEnd.BKQNEWS_bGetStory(story, entry) ? story.text : u"-"_s;
    };
    for (const CHeadlineTable& entry : {none, none, awaited, unknown})
        EXPECT_FALSE(backEnd.BKQNEWS_bGetStory(story, entry));
    EXPECT_EQ(heard(), QStringList{});
    QCoreApplication::processEvents();
    EXPECT_EQ(heard(), (QStringList{u"story 1"_s, u"story 9"_s}));
    EXPECT_EQ(found, (QStringList{QString(), QString()}));
    found.clear();
    for (const CHeadlineTable& entry : {none, awaited, unknown})
        EXPECT_TRUE(backEnd.BKQNews_bReRequestHeadlineStory(entry));
    QCoreApplication::processEvents();
    EXPECT_EQ(heard(), (QStringList{u"story 1"_s, u"story 2"_s, u"story 9"_s})) << "each is answered";
    EXPECT_EQ(found, (QStringList{QString(), u"-"_s, QString()})) << "the second is still to come";
    found.clear();
    ASSERT_TRUE(backEnd.takeStory(keyOf(none), u"After all"_s));
    EXPECT_EQ(found, QStringList{u"After all"_s});
    // A day is as long as a promise holds.
    heard();
    host_clock::startAt(at(12, 0) + 86'399);
    EXPECT_FALSE(backEnd.BKQNEWS_bGetStory(story, awaited));
    QCoreApplication::processEvents();
    EXPECT_EQ(heard(), QStringList{});
    host_clock::startAt(at(12, 0) + 86'405);
    EXPECT_FALSE(backEnd.BKQNEWS_bGetStory(story, awaited));
    QCoreApplication::processEvents();
    EXPECT_EQ(heard(), QStringList{u"story 2"_s});
    EXPECT_EQ(found.last(), QString());
    EXPECT_EQ(StoreChecker(store->path()).check().value(), QStringList{});
}

TEST_F(LiveNewsTest, WhatIsHeldIsNotAtHandAndItsAnswersWait) {
    NewsItem item = newsItem(1, u"a"_s, at(10, 0), u"A"_s);
    item.story = u"Text"_s;
    takeIn(item);
    heard();
    const CHeadlineTable entry{at(10, 0), 1, 1, 0, 0};
    std::vector<CHeadline> headlines;
    CStory story;
    for (const Held what : {Held::Headlines, Held::Stories, Held::Tables})
        backEnd.hold(what, true);
    EXPECT_EQ(entriesOfToday(), 0);
    EXPECT_EQ(backEnd.BKQNEWS_iGetHeadline(1, headlines, {entry, entry}), 0);
    EXPECT_FALSE(backEnd.BKQNEWS_bGetStory(story, entry));
    EXPECT_TRUE(backEnd.BKQNews_bReRequestHeadlineStory(entry));
    EXPECT_TRUE(backEnd.BKNEWS_bReRequestHeadlineTable(1, 0, u"20260302"_s));
    EXPECT_TRUE(backEnd.BKNEWS_bReRequestHeadlineTable(1, 0, u"20260303"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(heard(), QStringList{});

    backEnd.hold(Held::Tables, false);
    EXPECT_EQ(heard(), (QStringList{u"date table 1 20260302 0"_s, u"date table 1 20260303 -1"_s}));
    backEnd.hold(Held::Stories, false);
    EXPECT_EQ(heard(), (QStringList{u"story 1"_s, u"story 1"_s})) << "the look-up and the request";
    backEnd.hold(Held::Headlines, false);
    EXPECT_EQ(heard(), QStringList{u"1 headlines"_s});
    for (const Held what : {Held::Headlines, Held::Stories, Held::Tables})
        backEnd.hold(what, false);
    EXPECT_EQ(heard(), QStringList{});
    EXPECT_EQ(backEnd.BKQNEWS_iGetHeadline(1, headlines, {entry}), 1);
}

TEST_F(LiveNewsTest, AServiceKeepsTheNewsDayThatItHasReported) {
    EXPECT_EQ(backEnd.BKQNEWS_cszGetCurrDateByService(1), u"20260302"_s);
    backEnd.startNewsDay({1, 20260303});
    backEnd.startNewsDay({1, 20261399});
    EXPECT_EQ(backEnd.BKQNEWS_cszGetCurrDateByService(1), u"20260303"_s);
    EXPECT_EQ(backEnd.BKQNEWS_cszGetCurrDateByService(2), u"20260302"_s);
    EXPECT_EQ(heard(), (QStringList{u"day 20260303 of 1"_s, u"day 20261399 of 1"_s}));
    backEnd.forgetNewsDays();
    EXPECT_EQ(backEnd.BKQNEWS_cszGetCurrDateByService(1), u"20260302"_s);
}

TEST_F(LiveNewsTest, APositionIsKeptWithTheItemsBeforeItOrNotAtAll) {
    EXPECT_EQ(writer->positionOf(u"wire"_s).value(), QString());
    ASSERT_TRUE(writer->begin());
    ASSERT_TRUE(writer->keepPosition(u"wire"_s, u"12"_s));
    writer->rollback();
    EXPECT_EQ(writer->positionOf(u"wire"_s).value(), QString());
    EXPECT_FALSE(writer->keepPosition(u"wire"_s, u"12"_s));
    ASSERT_TRUE(writer->begin());
    ASSERT_TRUE(writer->keepPosition(u"wire"_s, u"12"_s));
    ASSERT_TRUE(writer->keepPosition(u"wire"_s, u"13"_s));
    ASSERT_TRUE(writer->commit());
    backEnd.run([](StoreWriter& other) { EXPECT_EQ(other.positionOf(u"wire"_s).value(), u"13"_s); });
}

TEST_F(LiveNewsTest, AStoredDayGivesItsNewsBackWholeAndInOrder) {
    NewsItem late = newsItem(52, u"late"_s, at(23, 59, 59), u"Last of the day"_s);
    late.version = 7;
    late.story = u"One@@@@Two"_s;
    late.category = u"Expiry"_s;
    late.related = {{16, u"2330"_s}, {0, u"X"_s}};
    takeIn(late);
    NewsItem first = newsItem(1, u"first"_s, at(0, 0), u"First of the day"_s);
    first.story.reset();
    takeIn(first);
    takeIn(newsItem(1, u"before"_s, at(0, 0) - 1, u"Of the day before"_s));
    takeIn(newsItem(1, u"after"_s, at(0, 0) + 86400, u"Of the day after"_s));
    NewsItem named = newsItem(1, u"named"_s, at(1, 0), u"In a category of its own"_s);
    named.category = u"Shipping"_s;
    takeIn(named);
    const auto day = StoredDay::open(store->path(), QDate(2026, 3, 2));
    ASSERT_TRUE(day && day.value()->size() == 3);
    EXPECT_EQ(day.value()->item(0).value().title, u"First of the day"_s);
    EXPECT_EQ(day.value()->item(0).value().story, std::nullopt) << "still to come";
    EXPECT_EQ(day.value()->item(1).value().story, QString()) << "none";
    const NewsItem back = day.value()->item(2).value();
    EXPECT_EQ(std::tie(back.service, back.identity, back.version, back.time, back.title, back.story,
                       back.category, back.related),
              std::tie(late.service, late.identity, late.version, late.time, late.title, late.story,
                       late.category, late.related));
    EXPECT_EQ(back.sequence, 1);

    const auto other = openStore(pathOf(u"other.db"_s));
    ASSERT_TRUE(other);
    const Done copied = day.value()->copyCatalogues(*other.value());
    ASSERT_TRUE(copied) << sentence(copied.error()).toStdString();
    const char* const names =
        "SELECT service, category, name FROM service_categories JOIN categories USING(space) "
        "WHERE id = category ORDER BY 1, 2";
    EXPECT_EQ(rowsOf(*other.value(), names), rows(names));
    EXPECT_FALSE(rows(names).filter(u"Shipping"_s).isEmpty());
}

TEST_F(LiveNewsTest, TheLogOfArrivalsLetsTheOldestGo) {
    ArrivalLog log(*store, 3);
    takeNews(newsItem(1, u"a"_s, at(9, 0), u"A"_s));
    for (int i = 0; i < 5; ++i)
        ASSERT_TRUE(log.add(1, true) && log.trim());
    EXPECT_EQ(rows("SELECT min(position), max(position), count(*) FROM arrivals"), QStringList{u"4|6|3"_s});
    std::int64_t position = 0;
    EXPECT_EQ(log.after(position).size(), 1u);
    EXPECT_EQ(position, 6);
}

}  // namespace

}  // namespace wirepane
