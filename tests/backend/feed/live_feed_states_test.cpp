// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_name.h"
#include "backend/feed/live_feed.h"
#include "backend/feed/socket_source.h"
#include "backend/feed/source_health.h"
#include "backend/feed/spool_source.h"
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "tests/backend/store/listener.h"
#include "tests/backend/store/take_all.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

std::int64_t moment(const QString& text) {
    return QDateTime::fromString(text, Qt::ISODate).toSecsSinceEpoch();
}

class LiveFeedStatesTest : public testing::Test {
protected:
    LiveFeedStatesTest() {
        host_clock::startAt(moment(u"2026-03-02T12:00:00"_s));
        backEnd->forgetNewsDays();
        backEnd->attach(&listener);
        feed = std::make_unique<LiveFeed>(*backEnd);
        QObject::connect(feed.get(), &LiveFeed::stateChanged, feed.get(), [this] { states += nameOf(); });
        QObject::connect(feed.get(), &LiveFeed::trouble, feed.get(),
                         [this](const Error& error) { told += sentence(error); });
        feed->addSource(std::move(
            SpoolSource::open(folder.filePath(u"spool"_s), {std::chrono::milliseconds(0), 1'000'000, {}})
                .value()));
    }
    ~LiveFeedStatesTest() override { backEnd->detach(&listener); }

    QString trouble() const {
        const auto error = feed->state().trouble;
        return error ? sentence(*error) : QString();
    }
    QString nameOf() const {
        const FeedState state = feed->state();
        return QStringList{u"live"_s, u"reconnecting"_s, u"offline"_s, u"read"_s}.at(state.kind) +
               (state.late > 0 ? u" %1 late"_s.arg(state.late) : QString());
    }
    std::unique_ptr<EmbeddedBackEnd> open() {
        StoreConnections opened = connectionsTo(store);
        database = opened.writing.get();
        return std::make_unique<EmbeddedBackEnd>(std::move(opened));
    }
    // On the connection that writes.
    void limitPages(std::int64_t pages) {
        backEnd->run([&](StoreWriter&) {
            ASSERT_TRUE(database->execute(("PRAGMA max_page_count = " + std::to_string(pages)).c_str()));
        });
    }
    // The store and what stands beside it.
    void moveStore(const QString& from, const QString& to) {
        for (const QString& ending : {u""_s, u"-wal"_s, u"-shm"_s})
            ASSERT_TRUE(QFile::rename(from + ending, to + ending));
    }
    // `local` is a local time.
    void put(const QString& name, const QString& title, const QString& local) {
        QFile file(folder.filePath(u"spool/"_s + name));
        const QString utc = QDateTime::fromSecsSinceEpoch(moment(local), Qt::UTC).toString(Qt::ISODate);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(u"{\"uri\":\"%1\",\"headline\":\"%2\",\"versioncreated\":\"%3\"}\n"_s.arg(name, title, utc)
                       .toUtf8());
    }
    bool hears(const QString& what) {
        return QTest::qWaitFor([&] { return listener.heard.filter(what).size() > 0; }, 10000);
    }
    bool becomes(FeedState::Kind kind) {
        return QTest::qWaitFor([&] { return feed->state().kind == kind; }, 10000);
    }

    QTemporaryDir folder;
    int newsOfTheDay() {
        std::vector<CHeadlineTable> table;
        return backEnd->BKQNEWS_iGetHeadlineTable(1, table, 0, u"20260302"_s);
    }

    QString store = folder.filePath(u"news.db"_s);
    Database* database = nullptr;  // the back end's own, which writes
    std::unique_ptr<EmbeddedBackEnd> backEnd = open();
    Listener listener;
    std::unique_ptr<LiveFeed> feed;
    QStringList states;
    QStringList told;
};

TEST_F(LiveFeedStatesTest, ABreakIsVisibleUntilWhatItKeptAwayIsTaken) {
    feed->setConnected(false);
    EXPECT_EQ(feed->state().since, host_clock::now());
    put(u"a"_s, u"Waits in the spool"_s, u"2026-03-02T11:00:00"_s);
    NewsItem item;
    item.identity = u"b"_s;
    item.title = u"Waits in the store"_s;
    item.time = moment(u"2026-03-02T10:00:00"_s);
    ASSERT_TRUE(backEnd->takeIn(item));
    QTest::qWait(600);  // longer than the feed's period
    EXPECT_EQ(listener.heard, QStringList{});
    EXPECT_TRUE(feed->isIdle());

    feed->setConnected(true);
    EXPECT_TRUE(hears(u"Waits in the spool"_s));
    EXPECT_TRUE(becomes(FeedState::Live));
    EXPECT_EQ(listener.heard, (QStringList{u"headline 1/1 Waits in the store [0] "_s,
                                           u"headline 1/2 Waits in the spool [0] "_s}));
    EXPECT_EQ(states, (QStringList{u"offline"_s, u"reconnecting 1 late"_s, u"reconnecting 2 late"_s,
                                   u"live 2 late"_s}));
}

TEST_F(LiveFeedStatesTest, AStoreThatAnotherProgramKeepsBusyStopsNeitherTheWindowsNorTheNews) {
    const auto other = openStore(store);
    ASSERT_TRUE(other && other.value()->execute("BEGIN IMMEDIATE"));
    put(u"a"_s, u"Waits for the other"_s, u"2026-03-02T11:00:00"_s);
    QElapsedTimer longest;
    qint64 pause = 0;
    longest.start();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            pause = std::max(pause, longest.restart());
            return feed->state().kind == FeedState::Reconnecting;
        },
        10000));
    EXPECT_LT(pause, 1000);
    EXPECT_TRUE(trouble().contains(u"is being used by another program"_s)) << trouble().toStdString();
    EXPECT_TRUE(QFile::exists(folder.filePath(u"spool/a"_s)));
    ASSERT_TRUE(other.value()->execute("COMMIT"));
    EXPECT_TRUE(hears(u"Waits for the other"_s));
    EXPECT_TRUE(becomes(FeedState::Live));
    EXPECT_EQ(trouble(), QString());
}

// What cannot be taken stays with the sender, however much it is.
TEST_F(LiveFeedStatesTest, ASenderWaitsWhileTheStoreCannotBeWritten) {
    const auto other = openStore(store);
    ASSERT_TRUE(other && other.value()->execute("BEGIN IMMEDIATE"));
    feed->addSource(std::make_shared<SocketSource>(folder.filePath(u"feed"_s)));
    QLocalSocket sender;
    sender.connectToServer(folder.filePath(u"feed"_s));
    ASSERT_TRUE(sender.waitForConnected());
    constexpr int many = 300;
    qint64 bytes = 0;
    for (int i = 0; i < many; ++i)
        bytes += sender.write(
            u"{\"uri\":\"u:%1\",\"headline\":\"N\",\"body_text\":\"%2\",\"versioncreated\":"
            u"\"2026-03-02T01:00:00Z\"}\n"_s.arg(i)
                .arg(QString(20'000, u'x'))
                .toUtf8());
    EXPECT_TRUE(becomes(FeedState::Reconnecting));
    QTest::qWait(500);
    EXPECT_GT(sender.bytesToWrite(), bytes - 2 * 1024 * 1024);
    EXPECT_EQ(newsOfTheDay(), 0);
    ASSERT_TRUE(other.value()->execute("COMMIT"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return newsOfTheDay() == many; }, 30000));
    EXPECT_TRUE(becomes(FeedState::Live));
}

// The same answer as a full disk gives.
TEST_F(LiveFeedStatesTest, AFullDiskStopsTheFeedUntilThereIsRoomAgain) {
    put(u"a"_s, u"Before"_s, u"2026-03-02T11:00:00"_s);
    EXPECT_TRUE(hears(u"Before"_s));
    std::int64_t pages = 0;
    ASSERT_TRUE(openStore(store).value()->readNumber("PRAGMA page_count", pages));
    limitPages(pages);
    for (int i = 0; i < 20; ++i)
        put(u"b%1"_s.arg(i), u"Waits for room "_s + QString(8000, u'x'), u"2026-03-02T11:30:00"_s);
    EXPECT_TRUE(becomes(FeedState::Reconnecting));
    EXPECT_TRUE(trouble().contains(u"the disk is full"_s)) << trouble().toStdString();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !told.isEmpty(); }, 10000));
    EXPECT_EQ(told, QStringList{trouble()});
    // What was taken before it was full is told; the rest waits, whole, and nothing stands half in the store.
    const auto waiting = QDir(folder.filePath(u"spool"_s)).entryList(QDir::Files).size();
    EXPECT_GT(waiting, 0);
    EXPECT_EQ(newsOfTheDay(), 21 - waiting);
    EXPECT_EQ(StoreChecker(store).check().value(), QStringList{});

    limitPages(1'000'000);
    EXPECT_TRUE(becomes(FeedState::Live));
    EXPECT_TRUE(QTest::qWaitFor([&] { return newsOfTheDay() == 21 && feed->isIdle(); }, 10000));
    EXPECT_EQ(listener.heard.filter(u"headline"_s).size(), 21);
    EXPECT_EQ(StoreChecker(store).check().value(), QStringList{});
}

TEST_F(LiveFeedStatesTest, AStoreThatIsTakenAwayTakesNoNewsWithIt) {
    put(u"a"_s, u"Before"_s, u"2026-03-02T11:00:00"_s);
    EXPECT_TRUE(hears(u"Before"_s));
    moveStore(store, folder.filePath(u"elsewhere.db"_s));
    EXPECT_TRUE(becomes(FeedState::Reconnecting)) << "though nothing came";
    EXPECT_TRUE(trouble().contains(u"was moved or deleted"_s)) << trouble().toStdString();
    put(u"b"_s, u"Comes meanwhile"_s, u"2026-03-02T11:30:00"_s);
    NewsItem item;
    item.title = u"By hand"_s;
    EXPECT_FALSE(backEnd->takeIn(item));
    EXPECT_EQ(newsOfTheDay(), 1) << "what is there can be read";
    QTest::qWait(600);  // longer than the feed's period
    EXPECT_TRUE(QFile::exists(folder.filePath(u"spool/b"_s)));

    EXPECT_EQ(told, QStringList{trouble()}) << "once";

    moveStore(folder.filePath(u"elsewhere.db"_s), store);
    EXPECT_TRUE(hears(u"Comes meanwhile"_s));
    EXPECT_TRUE(becomes(FeedState::Live));

    for (const QString& ending : {u""_s, u"-wal"_s, u"-shm"_s})
        ASSERT_TRUE(QFile::remove(store + ending));
    EXPECT_TRUE(becomes(FeedState::Reconnecting));
    put(u"c"_s, u"Too late"_s, u"2026-03-02T11:40:00"_s);
    QTest::qWait(600);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"spool/c"_s)));
    EXPECT_EQ(newsOfTheDay(), 2);
}

TEST_F(LiveFeedStatesTest, AStoreThatCanOnlyBeReadIsSaidToBeSoOnce) {
    backEnd->detach(&listener);
    feed.reset();
    backEnd = std::make_unique<EmbeddedBackEnd>(
        std::move(withReader(Database::openToRead(store, std::chrono::seconds(1))).value()));
    feed = std::make_unique<LiveFeed>(*backEnd);
    QStringList sentences;
    QObject::connect(feed.get(), &LiveFeed::trouble, feed.get(),
                     [&sentences](const Error& error) { sentences += sentence(error); });
    EXPECT_TRUE(becomes(FeedState::OnlyRead));
    QTest::qWait(600);
    EXPECT_EQ(sentences, QStringList{trouble()});
    EXPECT_TRUE(trouble().contains(u"can only be read"_s));
}

TEST(SourceHealth, OfAllIsThatOfTheOneThatStandsBest) {
    const struct {
        std::vector<SourceState::Kind> kinds;
        SourceHealth health;
        bool isFaulty;
    } cases[] = {
        {{}, SourceHealth::None, false},
        {{SourceState::Failed, SourceState::Live, SourceState::Stale}, SourceHealth::Good, false},
        {{SourceState::Silent, SourceState::Stale, SourceState::Connecting}, SourceHealth::Stale, false},
        {{SourceState::Offline, SourceState::Connecting}, SourceHealth::Connecting, false},
        {{SourceState::Failed, SourceState::Silent}, SourceHealth::Silent, true},
        {{SourceState::Failed}, SourceHealth::Failed, true},
        {{SourceState::Failed, SourceState::Offline}, SourceHealth::Offline, false},
    };
    for (const auto& one : cases) {
        std::vector<SourceReport> sources;
        for (const SourceState::Kind kind : one.kinds)
            sources.push_back({{}, {kind}});
        EXPECT_EQ(healthOf(sources), one.health) << one.kinds.size();
        EXPECT_EQ(isFaulty(healthOf(sources)), one.isFaulty) << one.kinds.size();
    }
}

// Of one that has nothing new others may still bring news; of one without a sign of life nobody knows.
TEST(SourceHealth, QuietAreThoseWithoutASignOfLifeAndAllThatHaveNothingNew) {
    const auto told = [](const std::vector<SourceState::Kind>& kinds) {
        std::vector<SourceReport> sources{{u"news.db"_s, {SourceState::Live}},
                                          {defaultFeedName, {SourceState::Live}}};
        for (const SourceState::Kind kind : kinds)
            sources.push_back({QString::number(sources.size()), {kind, 100}});
        QStringList names;
        for (const QuietSource& source : quietAmong(withOtherEnds(sources, u"news.db"_s))) {
            EXPECT_EQ(source.since, 100);
            names += source.name + (source.answers ? u" answers"_s : u" silent"_s);
        }
        return names.join(u", "_s);
    };
    EXPECT_EQ(told({}), QString());
    EXPECT_EQ(told({SourceState::Live, SourceState::Stale}), QString());
    EXPECT_EQ(told({SourceState::Stale, SourceState::Stale}), u"2 answers, 3 answers"_s);
    EXPECT_EQ(told({SourceState::Live, SourceState::Silent, SourceState::Stale}), u"3 silent"_s);
    EXPECT_EQ(told({SourceState::Stale, SourceState::Silent}), u"2 answers, 3 silent"_s);
    EXPECT_EQ(told({SourceState::Offline, SourceState::Connecting}), QString());
}

TEST_F(LiveFeedStatesTest, AClockThatIsSetBackStartsNoDayTwice) {
    host_clock::startAt(moment(u"2026-03-04T09:00:00"_s));
    put(u"a"_s, u"Too early"_s, u"2026-03-04T08:59:00"_s);
    EXPECT_TRUE(hears(u"day 20260304"_s));
    host_clock::startAt(moment(u"2026-03-03T09:00:00"_s));
    put(u"b"_s, u"Set back"_s, u"2026-03-03T08:59:00"_s);
    EXPECT_TRUE(hears(u"date table 1 20260303 0"_s)) << "the views are in the day that was reported";
    host_clock::startAt(moment(u"2026-03-04T09:00:00"_s));
    put(u"c"_s, u"The day itself"_s, u"2026-03-04T08:59:30"_s);
    EXPECT_TRUE(hears(u"The day itself"_s));
    EXPECT_EQ(listener.heard.filter(u"day 2026"_s), QStringList{u"day 20260304 of 1"_s});
}

TEST_F(LiveFeedStatesTest, TheFirstNewsOfANewDayStartsItOnce) {
    put(u"a"_s, u"Today"_s, u"2026-03-02T11:00:00"_s);
    EXPECT_TRUE(hears(u"Today"_s));
    host_clock::startAt(moment(u"2026-03-03T00:10:00"_s));
    put(u"b"_s, u"Of yesterday"_s, u"2026-03-02T23:59:59"_s);
    EXPECT_TRUE(hears(u"date table 1 20260302 0"_s)) << "late news of the day before";
    EXPECT_EQ(listener.heard.filter(u"day 2026"_s), QStringList{});
    put(u"c"_s, u"First"_s, u"2026-03-03T00:00:00"_s);
    EXPECT_TRUE(hears(u"day 2026"_s));
    put(u"d"_s, u"Second"_s, u"2026-03-03T00:05:00"_s);
    EXPECT_TRUE(hears(u"Second"_s));
    EXPECT_EQ(listener.heard.filter(u"day 2026"_s), QStringList{u"day 20260303 of 1"_s});
}

}  // namespace

}  // namespace wirepane
