// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What holds for every source of live news: a row of the table for each.
#include "backend/feed/feed_client.h"
#include "backend/feed/socket_source.h"
#include "backend/feed/source_kinds.h"
#include "backend/feed/spool_source.h"
#include "backend/store/store_writer.h"
#include "host/contract/clock.h"
#include "tests/backend/feed/live_source_fixture.h"

#include <QFile>

#include <map>
#include <string>

namespace wirepane {

namespace {

constexpr ErrorCode logGone{"", u"The log is gone."};

// A source and what stands at its other end, which outlives the terminal.
struct SourceCase {
    std::function<std::shared_ptr<FeedSource>()> open;  // null: every terminal has it
    std::function<void(int number)> bring;
    QStringList states;  // opened, disconnected, connected again
};

class SourceTableTest : public LiveSourceTest {
protected:
    std::map<std::string, SourceCase> cases() {
        return {
            {"spool",
             {[this] {
                  return std::shared_ptr(std::move(SpoolSource::open(spool, {0ms, 1'000'000, {}}).value()));
              },
              [this](int number) { putIntoSpool(number); },
              {u"live"_s, u"offline"_s, u"live"_s}}},
            {"feed",
             {[this] { return std::make_shared<SocketSource>(socket); },
              [this](int number) { sendLine(number); },
              {u"live"_s, u"offline"_s, u"live"_s}}},
            {"store",
             {{},
              [this](int number) {
                  EXPECT_TRUE(elsewhere.begin() && elsewhere.take(numbered(number)) && elsewhere.commit());
              },
              {u"connecting"_s, u"live"_s, u"offline"_s, u"live"_s}}},
            {"queued",
             {[this] { return std::make_shared<QueuedSource>(u"log"_s, std::make_unique<LogReader>(log)); },
              [this](int number) { log.size = number; },
              {u"connecting"_s, u"live"_s, u"offline"_s, u"connecting"_s, u"live"_s}}},
        };
    }
    void begin(const SourceCase& one) {
        if (one.open)
            feed->addSource(one.open());
    }
    void putIntoSpool(int number) {
        QFile file(spool + u"/%1.part"_s.arg(number));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        const NewsItem news = numbered(number);
        const QString when = QDateTime::fromSecsSinceEpoch(news.time, Qt::UTC).toString(Qt::ISODate);
        file.write(u"{\"uri\":\"%1\",\"headline\":\"%2\",\"versioncreated\":\"%3\"}\n"_s
                       .arg(news.identity, news.title, when)
                       .toUtf8());
        file.close();
        EXPECT_TRUE(file.rename(spool + u"/%1.jsonl"_s.arg(number)));
    }
    void sendLine(int number) {
        if (!std::exchange(isClientStarted, true))
            client.start(40);
        const QString position = QString::number(number);
        client.send(itemLine(numbered(number), position).chopped(1), position);
    }

    QString spool = folder.filePath(u"spool"_s);
    QString socket = folder.filePath(u"feed"_s);
    FeedClient client{socket, {u"desk"_s, 1}};
    bool isClientStarted = false;
    RemoteLog log;
    std::unique_ptr<Database> other = std::move(openStore(storeFile).value());
    StoreWriter elsewhere{*other};
};

const std::vector<std::string> everySource{"spool", "feed", "store", "queued"};

class EverySourceTest : public SourceTableTest, public testing::WithParamInterface<std::string> {};

TEST_F(SourceTableTest, HasEveryKindThatAUserCanName) {
    const auto table = cases();
    EXPECT_EQ(table.size(), everySource.size());
    for (const SourceKind& kind : sourceKinds())
        EXPECT_TRUE(table.contains(QString(kind.name).toStdString())) << QString(kind.name).toStdString();
}

TEST_P(EverySourceTest, OverABreakAndARestartNothingIsLostAndNothingComesTwice) {
    const SourceCase one = cases().at(GetParam());
    begin(one);
    for (int number = 1; number <= 3; ++number)
        one.bring(number);
    EXPECT_TRUE(hasTold(3));
    feed->setConnected(false);
    for (int number = 4; number <= 6; ++number)
        one.bring(number);
    QTest::qWait(300);  // longer than the feed's period
    EXPECT_EQ(told().size(), 3);
    feed->setConnected(true);
    EXPECT_TRUE(hasTold(6));
    one.bring(7);
    end();
    one.bring(8);
    one.bring(9);
    open();
    begin(one);
    EXPECT_TRUE(QTest::qWaitFor([&] { return titlesIn(*other).size() == 9; }, 10000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return feed->isIdle(); }, 10000));
    QStringList titles = titlesIn(*other);
    titles.sort();
    EXPECT_EQ(titles, titlesUpTo(9));
    EXPECT_EQ(told().removeDuplicates(), 0);
}

TEST_P(EverySourceTest, WhatItBringsIsTimed) {
    const SourceCase one = cases().at(GetParam());
    begin(one);
    for (int number = 1; number <= 3; ++number)
        one.bring(number);
    ASSERT_TRUE(hasTold(3));
    const std::vector<SourceDelays> delays = feed->delays();
    // What another program has written to the store did not come by a source.
    ASSERT_EQ(delays.size(), one.open ? 1U : 0U);
    if (delays.empty())
        return;
    EXPECT_EQ(delays.front().toStore.count, 3);
    EXPECT_EQ(delays.front().toReceipt.count, 3);
    EXPECT_GT(delays.front().toStore.longest, 0);
    const std::int64_t seconds = host_clock::now() - numbered(1).time;
    EXPECT_NEAR(double(delays.front().toReceipt.longest), double(seconds) * 1e6, 60e6);
}

TEST_P(EverySourceTest, ItsStateIsToldAsItChanges) {
    const SourceCase one = cases().at(GetParam());
    QStringList states;
    const auto note = [&] {
        const auto sources = feed->sources();
        const std::size_t index = one.open ? 1 : 0;
        if (sources.size() <= index)
            return;
        const QString now = nameOf(sources[index].state.kind);
        EXPECT_FALSE(sources[index].name.isEmpty());
        EXPECT_FALSE(sources[index].state.reason);
        if (states.isEmpty() || states.back() != now)
            states += now;
    };
    QObject::connect(feed.get(), &LiveFeed::sourcesChanged, feed.get(), note);
    note();
    begin(one);
    const auto becomesLive = [&] {
        return QTest::qWaitFor([&] { return !states.isEmpty() && states.back() == u"live"; }, 10000);
    };
    EXPECT_TRUE(becomesLive());
    feed->setConnected(false);
    QTest::qWait(300);
    feed->setConnected(true);
    EXPECT_TRUE(becomesLive());
    EXPECT_EQ(states, one.states);
}

INSTANTIATE_TEST_SUITE_P(Sources, EverySourceTest, testing::ValuesIn(everySource),
                         [](const auto& row) { return row.param; });

TEST_F(LiveSourceTest, WhatFailsIsToldWithItsReasonAndTriedAgain) {
    QStringList told;
    QObject::connect(feed.get(), &LiveFeed::trouble, feed.get(),
                     [&](const Error& error) { told += sentence(error); });
    const QString path = folder.filePath(u"taken"_s);
    QFile inTheWay(path);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const Done opened = feed->open(*sourceKind(u"feed"), path);
    ASSERT_FALSE(opened);
    const SourceReport report = feed->sources().back();
    EXPECT_EQ(report.name, path);
    EXPECT_EQ(nameOf(report.state.kind), u"failed"_s);
    EXPECT_EQ(report.state.since, host_clock::now());
    EXPECT_EQ(report.state.reason, opened.error());
    EXPECT_EQ(feed->state().kind, FeedState::Live) << "the others go on";
    ASSERT_TRUE(inTheWay.remove());
    feed->setConnected(false);
    feed->setConnected(true);
    EXPECT_EQ(nameOf(feed->sources().back().state.kind), u"live"_s);

    feed->addSource(
        std::make_shared<QueuedSource>(u"log"_s, std::make_unique<ScriptedReader>([](SourceQueue& queue) {
                                           queue.tell(SourceState::Failed, makeError<logGone>());
                                       })));
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.contains(u"The log is gone."_s); }));
    EXPECT_EQ(feed->sources().back().state.reason, makeError<logGone>()) << "it stays to be seen";
    EXPECT_FALSE(feed->open(*sourceKind(u"spool"), storeFile)) << "a file is no folder";
    EXPECT_EQ(sourceKind(u"none"), nullptr);
    feed->setConnected(false);
    feed->addSource(std::make_shared<SocketSource>(folder.filePath(u"late"_s)));
    EXPECT_EQ(nameOf(feed->sources().back().state.kind), u"offline"_s) << "as the feed is";
}

}  // namespace

}  // namespace wirepane
