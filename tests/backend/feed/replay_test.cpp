// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/replay.h"

#include "backend/feed/socket_source.h"
#include "backend/store/store_writer.h"
#include "tests/backend/feed/live_source_fixture.h"

#include <QSignalSpy>

#include <thread>

namespace wirepane {

namespace {

// Three pieces of news of one day, the last an hour after the others, and the terminal that they are played
// into.
class ReplayTest : public LiveSourceTest {
protected:
    ReplayTest() {
        const auto database = std::move(openStore(archive).value());
        StoreWriter writer(*database);
        EXPECT_TRUE(writer.begin());
        for (int i = 1; i <= 3; ++i) {
            NewsItem item = numbered(i);
            item.time += i == 3 ? 3600 : i;
            EXPECT_TRUE(writer.take(item));
        }
        EXPECT_TRUE(writer.commit());
        feed->addSource(std::make_shared<SocketSource>(socket));
    }

    std::size_t play(const ReplayOptions& options) {
        const auto day = std::move(StoredDay::open(archive, QDate(2026, 3, 2)).value());
        FeedClient client(socket, {options.run, 1});
        client.start(40);
        Replay replay(*day, client, options);
        QSignalSpy finished(&replay, &Replay::finished);
        replay.start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !finished.isEmpty(); }, 10000));
        return replay.played();
    }

    QString archive = folder.filePath(u"archive.db"_s);
    QString socket = folder.filePath(u"feed"_s);
};

TEST_F(ReplayTest, ADayIsPlayedInItsOrderOnceOrAsNews) {
    EXPECT_EQ(play({.speed = 0, .run = u"a"_s}), 3U);
    EXPECT_TRUE(hasTold(3));
    EXPECT_EQ(titlesIn(*openStore(storeFile).value()), titlesUpTo(3));
    EXPECT_EQ(play({.speed = 0, .run = u"b"_s}), 3U);
    EXPECT_EQ(titlesIn(*openStore(storeFile).value()), titlesUpTo(3)) << "the same news";
    EXPECT_EQ(play({.speed = 0, .asNew = true, .run = u"c"_s}), 3U);
    EXPECT_TRUE(hasTold(6));
    const auto store = std::move(openStore(storeFile).value());
    EXPECT_EQ(titlesIn(*store), titlesUpTo(3) + titlesUpTo(3));
    std::int64_t oldest = 0;
    ASSERT_TRUE(store->readNumber("SELECT min(time) FROM headlines WHERE id > 3", oldest));
    EXPECT_GE(oldest, host_clock::now() - 60) << "of this moment";
}

TEST_F(ReplayTest, ADayThatCannotBeReadOnIsSaidToBeSo) {
    const auto day = std::move(StoredDay::open(archive, QDate(2026, 3, 2)).value());
    ASSERT_TRUE(openStore(archive).value()->execute("DELETE FROM all_headlines WHERE id = 2"));
    FeedClient client(socket, {u"a"_s, 1});
    client.start(40);
    Replay replay(*day, client, {.speed = 0, .run = u"a"_s});
    QSignalSpy failed(&replay, &Replay::failed);
    replay.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !failed.isEmpty(); }));
    EXPECT_FALSE(failed.value(0).value(0).toString().isEmpty());
    EXPECT_TRUE(hasTold(1)) << "what could be read is played";
}

// Ten seconds lie between the first two and the last.
TEST_F(ReplayTest, WhatIsNotDueWaits) {
    struct Case {
        std::chrono::seconds ago;
        QString behind;  // the position that it goes on from
        QString position;
        std::size_t items;
    };
    const Case cases[] = {{1s, {}, u"2"_s, 2}, {100s, u"2"_s, u"3"_s, 1}, {100s, {}, u"3"_s, 3}};
    const auto day = std::move(StoredDay::open(archive, QDate(2026, 3, 2)).value());
    for (const Case& one : cases) {
        SourceQueue queue([] {});
        ReplayReader reader(*day, {.speed = 360, .from = day->timeOf(0), .run = {}},
                            ReplayReader::Clock::now() - one.ago);
        std::thread reading([&] { reader.run(one.behind, queue); });
        std::shared_ptr<const SourceBatch> batch;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            queue.takeChange();
            batch = queue.front();
            return batch != nullptr;
        }));
        queue.close();
        reading.join();
        ASSERT_NE(batch, nullptr);
        EXPECT_EQ(batch->items.size(), one.items);
        EXPECT_EQ(batch->position, one.position);
    }
}

}  // namespace

}  // namespace wirepane
