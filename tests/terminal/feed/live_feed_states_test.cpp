// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "terminal/feed/live_feed.h"
#include "tests/backend/store/listener.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
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
        backEnd->Attach(&listener);
        feed = std::make_unique<LiveFeed>(*backEnd);
        QObject::connect(feed.get(), &LiveFeed::stateChanged, feed.get(), [this] { states += nameOf(); });
        EXPECT_TRUE(feed->watch(folder.filePath(u"spool"_s), {std::chrono::milliseconds(0), 1'000'000, {}}));
    }
    ~LiveFeedStatesTest() override { backEnd->Detach(&listener); }

    QString nameOf() const {
        const FeedState state = feed->state();
        return QStringList{u"live"_s, u"reconnecting"_s, u"offline"_s}.at(state.kind) +
               (state.late > 0 ? u" %1 late"_s.arg(state.late) : QString());
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
    QString store = folder.filePath(u"news.db"_s);
    std::unique_ptr<EmbeddedBackEnd> backEnd = std::move(EmbeddedBackEnd::open(store).value());
    Listener listener;
    std::unique_ptr<LiveFeed> feed;
    QStringList states;
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
    EXPECT_TRUE(feed->state().trouble.contains(u"is being used by another program"_s))
        << feed->state().trouble.toStdString();
    EXPECT_TRUE(QFile::exists(folder.filePath(u"spool/a"_s)));
    ASSERT_TRUE(other.value()->execute("COMMIT"));
    EXPECT_TRUE(hears(u"Waits for the other"_s));
    EXPECT_TRUE(becomes(FeedState::Live));
    EXPECT_EQ(feed->state().trouble, QString());
}

TEST_F(LiveFeedStatesTest, TheFirstNewsOfANewDayStartsItOnce) {
    put(u"a"_s, u"Today"_s, u"2026-03-02T11:00:00"_s);
    EXPECT_TRUE(hears(u"Today"_s));
    host_clock::startAt(moment(u"2026-03-03T00:10:00"_s));
    put(u"b"_s, u"Of yesterday"_s, u"2026-03-02T23:59:59"_s);
    EXPECT_TRUE(hears(u"Of yesterday"_s));
    EXPECT_EQ(listener.heard.filter(u"day 2026"_s), QStringList{});
    put(u"c"_s, u"First"_s, u"2026-03-03T00:00:00"_s);
    EXPECT_TRUE(hears(u"day 2026"_s));
    put(u"d"_s, u"Second"_s, u"2026-03-03T00:05:00"_s);
    EXPECT_TRUE(hears(u"Second"_s));
    EXPECT_EQ(listener.heard.filter(u"day 2026"_s), QStringList{u"day 20260303 of 1"_s});
}

}  // namespace

}  // namespace wirepane
