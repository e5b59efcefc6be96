// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Sources that are read on a thread of their own.
#include "tests/backend/feed/live_source_fixture.h"

#include <random>

namespace wirepane {

namespace {

constexpr ErrorCode placeOfItemNo{"", u"%1"};
constexpr ErrorCode noMore{"", u": no more"};

TEST_F(LiveSourceTest, AReaderThatIsKilledAnywhereGoesOnBehindWhatWasKept) {
    RemoteLog log;
    std::mt19937 random(20260302);
    const auto other = openStore(storeFile);
    ASSERT_TRUE(other);
    QStringList kept;  // what is in the store when a reader begins
    const auto hasBegun = [&] {
        // What is being taken when an outage comes is kept, and the reader goes on behind it.
        backEnd->run({});
        const auto inStore = titlesIn(*other.value()).size();
        kept += inStore > 0 ? QString::number(inStore) : QString();
        return QTest::qWaitFor([&] { return log.timesRead() == kept.size(); });
    };
    for (int round = 0; round < 25; ++round) {
        feed->addSource(std::make_shared<QueuedSource>(u"log"_s, std::make_unique<LogReader>(log, 7)));
        ASSERT_TRUE(hasBegun());
        log.size += static_cast<int>(random() % 60);
        QTest::qWait(static_cast<int>(random() % 40));
        if (round % 3 == 0) {
            feed->setConnected(false);
            feed->setConnected(true);
            ASSERT_TRUE(hasBegun());
        }
        end();
        open();
    }
    feed->addSource(std::make_shared<QueuedSource>(u"log"_s, std::make_unique<LogReader>(log, 7)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return titlesIn(*other.value()).size() == log.size; }, 10000));
    EXPECT_EQ(titlesIn(*other.value()), titlesUpTo(log.size)) << "in the order of the log";
    EXPECT_EQ(log.positions.first(kept.size()), kept);
    EXPECT_EQ(told().removeDuplicates(), 0);
}

// What a source on a thread tells, in its order; nobody takes anything unless the test does.
class QueueWitness : public SourceTaker {
public:
    explicit QueueWitness(FeedSource& watched) { watched.setTaker(this); }
    void sourceReady(FeedSource& source) override {
        if (isTaking)
            takeFrom(source);
    }
    void sourceStateChanged(FeedSource& source) override {
        const auto& reason = source.state().reason;
        heard += nameOf(source.state().kind) + (reason ? sentence(*reason) : QString());
    }
    void takeFrom(FeedSource& source) {
        while (source.hasBatch()) {
            source.batch()->read([this](SourceItem&& item) {
                heard += sentence(item.place);
                return true;
            });
            source.acknowledge({});
        }
    }

    QStringList heard;
    bool isTaking = false;
};

TEST(QueuedSourceTest, BatchesAndStatesComeInTheOrderOfReading) {
    QueuedSource source(u"s"_s, std::make_unique<ScriptedReader>([](SourceQueue& queue) {
                            queue.tell(SourceState::Live);
                            for (int i = 1; i <= 6; ++i) {
                                queue.push({{{StoreItem(numbered(i)), makeError<placeOfItemNo>(i), 0}}, {}});
                                if (i == 3)
                                    queue.tell(SourceState::Stale);
                                if (i == 5)
                                    queue.tell(SourceState::Live);
                            }
                            queue.tell(SourceState::Failed, makeError<noMore>());
                        }));
    QueueWitness witness(source);
    witness.isTaking = true;
    source.resume(QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return witness.heard.size() == 10; }));
    EXPECT_EQ(witness.heard, (QStringList{u"live"_s, u"1"_s, u"2"_s, u"3"_s, u"stale"_s, u"4"_s, u"5"_s,
                                          u"live"_s, u"6"_s, u"failed: no more"_s}));
    EXPECT_FALSE(source.isDone()) << "it is shown why";
}

TEST(QueuedSourceTest, AReaderIsNoFurtherAheadThanTheQueueIsLong) {
    RemoteLog log;
    log.size = 1000;
    {
        QueuedSource source(u"log"_s, std::make_unique<LogReader>(log, 1));
        QueueWitness witness(source);
        EXPECT_TRUE(source.awaitsPosition());
        source.resume(u"10"_s);
        constexpr auto most = static_cast<int>(SourceQueue::mostWaiting);
        EXPECT_TRUE(QTest::qWaitFor([&] { return log.pushed == most; }));
        QTest::qWait(50);
        EXPECT_EQ(log.pushed, most);
        witness.heard.clear();
        source.batch()->read([&](SourceItem&& item) {
            witness.heard += sentence(item.place);
            return true;
        });
        EXPECT_EQ(witness.heard, QStringList{u"entry 11"_s});
        EXPECT_EQ(source.batch()->position(), u"11"_s);
        source.acknowledge({});
        EXPECT_TRUE(QTest::qWaitFor([&] { return log.pushed == most + 1; }));
        // A batch of before an outage cannot be acknowledged after it.
        source.batch();
        source.setOnline(false);
        source.setOnline(true);
        source.resume(u"11"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return source.hasBatch(); }));
        source.acknowledge({});
        EXPECT_EQ(source.batch()->position(), u"12"_s);
    }
    EXPECT_EQ(log.positions, (QStringList{u"10"_s, u"11"_s})) << "and the end waits for nobody";
}

}  // namespace

}  // namespace wirepane
