// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_dispatcher.h"

#include "host/contract/search_choices.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/support/conditions.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

constexpr int kind = 3;

// Each answer is written down with the sizes of the tables of services 1 and 2 at that moment.
class SearchDispatcherTest : public StoreFixture {
protected:
    SearchDispatcherTest() {
        takeNews(newsItem(1, u"a"_s, at(9, 0), u"gold"_s));
        takeNews(newsItem(1, u"b"_s, at(9, 1), u"gold and tin"_s));
        takeNews(newsItem(2, u"c"_s, at(9, 2), u"gold"_s));
        desk = std::make_unique<SearchDispatcher>(
            store->path(), [this](const CSearch& condition, unsigned char service) {
                answers += u"%1@%2 %3"_s.arg(condition.keywords.front()).arg(service).arg(sizes());
                if (then)
                    std::exchange(then, nullptr)();
            });
    }
    QString sizes() const {
        return u"%1,%2"_s.arg(desk->table(1, kind).size()).arg(desk->table(2, kind).size());
    }
    bool answered(qsizetype count) {
        return QTest::qWaitFor([&] { return answers.size() >= count; });
    }

    QStringList answers;
    std::function<void()> then;
    std::unique_ptr<SearchDispatcher> desk;
};

TEST_F(SearchDispatcherTest, AnswersEachServiceAndKeepsTheTableForTheSameCondition) {
    desk->ask(1, kind, condition({u"gold"_s}));
    desk->ask(2, kind, condition({u"gold"_s}));
    EXPECT_EQ(sizes(), u"0,0");
    ASSERT_TRUE(answered(2));
    EXPECT_EQ(answers, QStringList({u"gold@1 2,0"_s, u"gold@2 2,1"_s}));
    takeNews(newsItem(1, u"d"_s, at(9, 3), u"gold again"_s));
    desk->ask(1, kind, condition({u"gold"_s}));
    EXPECT_EQ(sizes(), u"2,1");
    ASSERT_TRUE(answered(3));
    EXPECT_EQ(sizes(), u"3,1");
    std::vector<CHeadlineTable> found;
    desk->table(1, kind).appendTo(found, 1);
    EXPECT_EQ(found.front().time, at(9, 3));
    EXPECT_EQ(desk->table(1, 4).size(), 0U);
    // A new condition empties the tables of services that it does not ask too. The old one after it, as a
    // view sends it whose headlines are pushed, finds its own again; composed anew it is a new one.
    desk->ask(1, kind, condition({u"tin"_s}));
    EXPECT_EQ(sizes(), u"0,0");
    ASSERT_TRUE(answered(4));
    EXPECT_EQ(sizes(), u"1,0");
    desk->ask(1, kind, condition({u"gold"_s}));
    ASSERT_TRUE(answered(5));
    EXPECT_EQ(answers.constLast(), u"gold@1 3,1"_s);
    desk->ask(1, kind, condition({u"tin"_s}));
    CSearch anew = condition({u"gold"_s});
    anew.time = 1;
    desk->ask(1, kind, anew);
    ASSERT_TRUE(answered(7));
    EXPECT_EQ(answers.constLast(), u"gold@1 3,0"_s);
    // Not all that was ever searched for is kept.
    for (int i = 0; i < 20; ++i)
        desk->ask(1, kind, condition({QString::number(i)}));
    ASSERT_TRUE(answered(27));
    desk->ask(1, kind, anew);
    EXPECT_EQ(sizes(), u"0,0");
}

TEST_F(SearchDispatcherTest, ItLooksAgainAndTellsOfWhatItFindsOnly) {
    takeNews(newsItem(1, u"d"_s, at(9, 1), u"gold of the same minute"_s));
    desk->ask(1, kind, condition({u"gold"_s}));
    ASSERT_TRUE(answered(1));
    desk->lookAgain(1, {{at(9, 0), 2, 1}, {at(9, 2), 9, 1}});
    desk->lookAgain(2, {{at(9, 2), 1, 2}});
    for (const HeadlineKey& key : {HeadlineKey{at(9, 0), 1, 1}, {at(9, 1), 2, 1}, {at(9, 1), 3, 1}}) {
        const qsizetype before = answers.size();
        desk->lookAgain(1, {{at(9, 5), 9, 1}, key});
        EXPECT_TRUE(answered(before + 1)) << key.sequence;
    }
    EXPECT_EQ(answers, QStringList(4, u"gold@1 3,0"_s));
}

TEST_F(SearchDispatcherTest, ANewerSearchForTheSameConditionMakesTheOlderVoid) {
    for (int i = 0; i < 50; ++i)
        desk->ask(1, kind, condition({u"gold"_s}));
    desk->ask(2, kind, condition({u"gold"_s}));
    ASSERT_TRUE(answered(2));
    QCoreApplication::processEvents();
    EXPECT_EQ(answers, QStringList({u"gold@1 2,0"_s, u"gold@2 2,1"_s}));
}

// Two views search at once: each reads its own tables while it is answered, and what was sent last stays.
TEST_F(SearchDispatcherTest, AnOvertakenSearchIsAnsweredWithItsOwnTables) {
    desk->ask(1, kind, condition({u"tin"_s}));
    desk->ask(1, kind, condition({u"gold"_s}));
    desk->ask(2, kind, condition({u"tin"_s}));
    desk->ask(2, kind, condition({u"gold"_s}));
    ASSERT_TRUE(answered(4));
    EXPECT_EQ(answers, QStringList({u"tin@1 1,0"_s, u"gold@1 2,0"_s, u"tin@2 1,0"_s, u"gold@2 2,1"_s}));
    EXPECT_EQ(sizes(), u"2,1");
}

TEST_F(SearchDispatcherTest, ASearchSentDuringAnAnswerIsThePresentOne) {
    then = [this] { desk->ask(2, kind, condition({u"tin"_s})); };
    desk->ask(1, kind, condition({u"gold"_s}));
    ASSERT_TRUE(answered(2));
    EXPECT_EQ(answers, QStringList({u"gold@1 2,0"_s, u"tin@2 0,0"_s}));
    EXPECT_EQ(sizes(), u"0,0");
}

// The keys of the headlines are read ahead; a store that is open leaves its shared memory beside it.
TEST_F(SearchDispatcherTest, SearchesBesideThoseOfViewsLeaveTheirTablesAloneAndTellWhoeverStillWaits) {
    desk->ask(1, kind, condition({u"tin"_s}));
    ASSERT_TRUE(answered(1));
    QStringList told;
    const auto ask = [&](const QString& name) {
        return desk->askBeside(
            {{condition({u"gold"_s}), {1, 2}}, {condition({u"tin"_s}), {2}}, {condition({u"tin"_s}), {1}}},
            [&told, name](std::vector<std::vector<CHeadlineTable>>&& found) {
                QStringList sizes;
                for (const auto& entries : found)
                    sizes += QString::number(entries.size());
                told += name + u' ' + sizes.join(u',');
            });
    };
    auto dropped = ask(u"dropped"_s);
    const auto kept = ask(u"kept"_s);
    dropped.reset();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !told.isEmpty(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, QStringList{u"kept 3,0,1"_s});
    EXPECT_EQ(answers.size(), 1);
    EXPECT_EQ(sizes(), u"1,0");
}

TEST_F(SearchDispatcherTest, TheNewestFewAreToldToWhoeverStillWaits) {
    QStringList told;
    const auto ask = [&](const QString& name, std::size_t most) {
        return desk->askNewest(
            {condition({u"gold"_s}), {1, 2}, NewsSearch::Newest{most}},
            [&told, name](std::vector<CHeadlineTable>&& found, bool isAll) {
                told += name + u' ' + QString::number(found.size());
                EXPECT_TRUE(isAll) << "all of it is the newest news";
                EXPECT_TRUE(std::is_sorted(found.rbegin(), found.rend(),
                                           [](const auto& a, const auto& b) { return a.time < b.time; }));
            });
    };
    auto dropped = ask(u"dropped"_s, 3);
    const auto few = ask(u"few"_s, 2);
    const auto all = ask(u"all"_s, 50);
    dropped.reset();
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() >= 2; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, (QStringList{u"few 2"_s, u"all 3"_s}));
    EXPECT_EQ(sizes(), u"0,0") << "the tables of views are left alone";
}

// As typed, in titles alone.
TEST_F(SearchDispatcherTest, WordsCutShortAreFoundAmongTheNewestTitles) {
    NewsItem withStory = newsItem(1, u"s"_s, at(8, 0), u"iron12 marigold"_s);
    withStory.story = u"golden"_s;
    takeNews(withStory);
    const struct {
        QString query;
        std::vector<std::int64_t> times;
    } cases[] = {
        {u"gol*"_s, {at(9, 2), at(9, 1), at(9, 0)}},
        {u"gold ti*"_s, {at(9, 1)}},
        {u"gold*"_s, {at(9, 2), at(9, 1), at(9, 0)}},  // each once
        {u"gold -ti*"_s, {at(9, 2), at(9, 0)}},
        {u"iro* | ti*"_s, {at(9, 1), at(8, 0)}},
        {u"iron1*"_s, {at(8, 0)}},
        {u"\"gold and t\"*"_s, {at(9, 1)}},
        {u"service:2 gol*"_s, {at(9, 2)}},
        {u"mar*"_s, {at(8, 0)}},
        {u"igol*"_s, {}},
    };
    for (const auto& one : cases) {
        CSearch typed = condition({one.query}, 0);
        typed.language = SearchLanguage::Query;
        typed.scope = numberOf(SearchScope::Headlines);
        std::optional<std::vector<std::int64_t>> times;
        const auto kept = desk->askNewest({typed, {1, 2}, NewsSearch::Newest{50}}, [&](auto&& found, bool) {
            times.emplace();
            for (const CHeadlineTable& entry : found)
                times->push_back(entry.time);
        });
        ASSERT_TRUE(QTest::qWaitFor([&] { return times.has_value(); }));
        EXPECT_EQ(*times, one.times) << one.query.toStdString();
    }
}

TEST_F(SearchDispatcherTest, AWorkerReadsAheadWhileNothingIsAsked) {
    ASSERT_TRUE(store->execute("PRAGMA wal_checkpoint(TRUNCATE)"));
    for (const bool isAsked : {false, true}) {
        const QString copy = pathOf(u"copy%1.db"_s.arg(isAsked));
        ASSERT_TRUE(QFile::copy(store->path(), copy));
        SearchWorker worker(
            copy, [](std::int64_t, KeyBlocks&&) {}, std::chrono::milliseconds(20));
        if (isAsked)
            worker.ask({1, 1, condition({u"gold"_s}), std::make_shared<std::atomic<bool>>(true)});
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(copy + u"-shm"_s); })) << isAsked;
    }
}

TEST_F(SearchDispatcherTest, AStoreThatCannotBeReadGivesEmptyAnswersAndTheEndWaitsForNothing) {
    QStringList told;
    SearchDispatcher lost(pathOf(u"none.db"_s),
                          [&](const CSearch&, unsigned char service) { told += QString::number(service); });
    lost.ask(7, kind, condition({u"gold"_s}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !told.isEmpty(); }));
    EXPECT_EQ(lost.table(7, kind).size(), 0U);
    for (int i = 0; i < 100; ++i)
        desk->ask(1, kind, condition({QString::number(i)}));
    desk.reset();
    QCoreApplication::processEvents();
    EXPECT_LE(answers.size(), 100);
}

}  // namespace
}  // namespace wirepane
