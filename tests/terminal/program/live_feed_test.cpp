// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The programs together: a terminal that is fed, the programs that feed it, and what survives their death.
// WIREPANE_KILLS is how often each of them is killed, a few times without it.
#include "backend/store/embedded_back_end.h"
#include "tests/terminal/program/program_runner.h"
#include "tests/terminal/program/script_client.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QSet>
#include <QTest>

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

const QString now = u"2026-03-02T23:30:00"_s;
const QString newsTime = u"2026-03-02T09:00:00Z"_s;
constexpr unsigned seed = 20260302;

// Starts the program without waiting for its end.
void start(QProcess& process, const QStringList& arguments) {
    process.start(programFile(), arguments);
    ASSERT_TRUE(process.waitForStarted());
}

class LiveFeedTest : public testing::Test {
protected:
    QStringList terminal(const QString& name) const {
        return {u"--store"_s,  storeOf(name),
                u"--config"_s, scratch.path(name + u"-config"_s),
                u"--now"_s,    now,
                u"--lang"_s,   u"en"_s,
                u"--feed"_s,   scratch.path(name),
                u"--spool"_s,  scratch.path(name + u"-spool"_s)};
    }
    QString storeOf(const QString& name) const { return scratch.path(name + u".wirepane"_s); }

    // The keys in the list of all news, from the top, once nothing is pending.
    static QStringList list(ScriptClient& script) {
        script.result(u"idle"_s);
        return listNow(script);
    }
    static QStringList listNow(ScriptClient& script) {
        const QJsonObject grid =
            script.result(u"grid.read"_s, QJsonObject{{u"list"_s, 0}, {u"from"_s, 0}, {u"count"_s, 100000}})
                .toObject();
        QStringList lines;
        for (const QJsonValue& key : grid[u"keys"_s].toArray())
            lines += u"%1/%2/%3"_s.arg(key[u"service"_s].toInt())
                         .arg(key[u"time"_s].toInteger())
                         .arg(key[u"seq"_s].toInt());
        return lines;
    }
    static void openView(ScriptClient& script) {
        script.result(u"view.open"_s, QJsonObject{{u"size"_s, QJsonArray{900, 600}}, {u"mask"_s, 1}});
    }
    static bool becomes(ScriptClient& script, qsizetype rows) {
        return QTest::qWaitFor([&] { return list(script).size() == rows; }, 20000);
    }

    Scratch scratch;
};

TEST_F(LiveFeedTest, NewsReachesARunningTerminalOnEveryRoad) {
    ScriptClient script(terminal(u"desk"_s));
    openView(script);
    EXPECT_EQ(list(script), QStringList{});

    // Through its socket, by the program and by hand.
    QProcess feed;
    start(feed, {u"feed"_s, u"--to"_s, scratch.path(u"desk"_s)});
    feed.write(ninjsItem(u"u:1"_s, u"By the feed"_s, u"Story"_s, newsTime) + "\nbroken\n");
    ASSERT_TRUE(becomes(script, 1));
    feed.write(ninjsItem(u"u:2"_s, u"Later"_s, u"Story"_s, newsTime) + '\n');
    feed.closeWriteChannel();
    ASSERT_TRUE(feed.waitForFinished());
    EXPECT_EQ(feed.exitCode(), 1);
    EXPECT_EQ(feed.readAllStandardOutput(), "2 taken in, 0 already there, 1 rejected\n");
    EXPECT_TRUE(feed.readAllStandardError().startsWith("line 2: "));
    EXPECT_TRUE(becomes(script, 2));

    // Through its spool folder.
    scratch.write(u"desk-spool/a.part"_s, ninjsItem(u"u:3"_s, u"By a file"_s, u"Story"_s, newsTime) + '\n');
    ASSERT_TRUE(QFile::rename(scratch.path(u"desk-spool/a.part"_s), scratch.path(u"desk-spool/a.jsonl"_s)));
    EXPECT_TRUE(becomes(script, 3));
    EXPECT_TRUE(QFile::exists(scratch.path(u"desk-spool/done/a.jsonl"_s)));

    // Through its store, by other programs.
    const QString more =
        scratch.write(u"more.jsonl"_s, ninjsItem(u"u:4"_s, u"By an import"_s, u"Story"_s, newsTime) + '\n');
    EXPECT_EQ(runProgram({u"import"_s, u"--store"_s, storeOf(u"desk"_s), more}).status, 0);
    EXPECT_TRUE(becomes(script, 4));
    script.result(u"app.quit"_s);
    script.endInput();
    EXPECT_EQ(runProgram({u"check"_s, u"--store"_s, storeOf(u"desk"_s)}).status, 0);
}

TEST_F(LiveFeedTest, TwoTerminalsOnOneStoreShowEachOthersNews) {
    QStringList second = terminal(u"second"_s);
    second.replace(1, storeOf(u"first"_s));
    ScriptClient one(terminal(u"first"_s));
    ScriptClient two(second);
    openView(one);
    openView(two);
    QProcess feeds[2];
    for (int i = 0; i < 2; ++i)
        start(feeds[i], {u"feed"_s, u"--to"_s, scratch.path(i == 0 ? u"first"_s : u"second"_s)});
    constexpr int each = 300;
    for (int i = 0; i < each; ++i) {
        for (QProcess& feed : feeds)
            feed.write(ninjsItem(u"u:%1-%2"_s.arg(&feed - feeds).arg(i), u"News"_s, u"Story"_s, newsTime) +
                       '\n');
    }
    for (QProcess& feed : feeds) {
        feed.closeWriteChannel();
        ASSERT_TRUE(feed.waitForFinished());
        EXPECT_EQ(feed.readAllStandardOutput(), "300 taken in, 0 already there, 0 rejected\n");
    }
    EXPECT_TRUE(becomes(one, 2 * each));
    EXPECT_TRUE(becomes(two, 2 * each));
    QStringList keys = list(one);
    QStringList others = list(two);
    // News of one time stands as it came, which the two saw differently.
    keys.sort();
    others.sort();
    EXPECT_EQ(keys, others);
}

TEST_F(LiveFeedTest, WhatCannotBeFedOrPlayedIsSaid) {
    const QString store = storeOf(u"empty"_s);
    struct Case {
        QStringList arguments;
        QString said;
    };
    const Case cases[] = {
        {{u"feed"_s, u"--to"_s, scratch.path(u"nobody"_s)}, u"No terminal takes a feed under the name"_s},
        {{u"feed"_s, u"--store"_s, store, u"file"_s}, u"news comes by standard input"_s},
        {{u"feed"_s, u"--store"_s, store, u"--service"_s, u"0"_s}, u"--service takes"_s},
        {{u"feed"_s, u"--store"_s, u"/proc/no/store"_s}, u"cannot be made"_s},
        {{u"replay"_s, u"--store"_s, scratch.path(u"none"_s)}, u"cannot be opened"_s},
        {{u"replay"_s, u"--store"_s, store, u"--date"_s, u"2.3.2026"_s}, u"--date takes"_s},
        {{u"replay"_s, u"--store"_s, store, u"--from"_s, u"9"_s}, u"--from takes"_s},
        {{u"replay"_s, u"--store"_s, store, u"--speed"_s, u"-1"_s}, u"--speed takes"_s},
        {{u"replay"_s, u"--store"_s, store, u"--speed"_s, u"nan"_s}, u"--speed takes"_s},
        {{u"replay"_s, u"--store"_s, store, u"--date"_s, u"2026-03-02"_s}, u"holds no news of 2026-03-02"_s},
    };
    ASSERT_EQ(runProgram({u"import"_s, u"--store"_s, store, scratch.write(u"x"_s, "?")}).status, 2);
    for (const Case& one : cases) {
        const ProgramOutcome outcome = runProgram(one.arguments);
        EXPECT_EQ(outcome.status, 2) << one.said.toStdString();
        EXPECT_TRUE(outcome.err.contains(one.said)) << outcome.err.toStdString();
        EXPECT_EQ(outcome.out, QString());
    }
}

TEST_F(LiveFeedTest, AReplayWithABreakEndsAsOneWithout) {
    const QString archive = scratch.path(u"archive.wirepane"_s);
    ASSERT_EQ(runProgram({u"sample"_s, u"--store"_s, archive, u"--now"_s, now, u"--days"_s, u"2"_s,
                          u"--per-day"_s, u"1500"_s})
                  .status,
              0);
    const auto replayTo = [&](const QString& name) {
        return QStringList{u"replay"_s,  u"--store"_s, archive,   u"--date"_s,       u"2026-03-02"_s,
                           u"--speed"_s, u"30000"_s,   u"--to"_s, scratch.path(name)};
    };
    QStringList calm;
    {
        ScriptClient script(terminal(u"calm"_s));
        openView(script);
        const ProgramOutcome played = runProgram(replayTo(u"calm"_s));
        ASSERT_EQ(played.status, 0) << played.err.toStdString();
        EXPECT_TRUE(played.out.contains(u" taken in, 0 already there, 0 rejected"_s));
        calm = list(script);
        ASSERT_GT(calm.size(), 500);
        // The same day again is there already.
        const ProgramOutcome again = runProgram(replayTo(u"calm"_s));
        EXPECT_TRUE(again.out.startsWith(u"0 taken in, "_s)) << again.out.toStdString();
        EXPECT_TRUE(again.err.contains(u"--as-new"_s));
        EXPECT_EQ(list(script), calm);
    }
    ScriptClient script(terminal(u"broken"_s));
    openView(script);
    QProcess replay;
    start(replay, replayTo(u"broken"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return listNow(script).size() > calm.size() / 4; }, 20000));
    script.result(u"feed.connect"_s, QJsonObject{{u"on"_s, false}});
    const QStringList atOutage = list(script);
    EXPECT_LT(atOutage.size(), calm.size());
    script.result(u"wait"_s, QJsonObject{{u"ms"_s, 1000}});
    EXPECT_EQ(list(script), atOutage);
    script.result(u"feed.connect"_s, QJsonObject{{u"on"_s, true}});
    ASSERT_TRUE(replay.waitForFinished(60000));
    EXPECT_EQ(replay.exitCode(), 0) << replay.readAllStandardError().toStdString();
    EXPECT_EQ(list(script), calm);
}

// The identities that the sender was told are on the disk, and those that the store has.
class FeedKillTest : public LiveFeedTest {
protected:
    static int kills(int few) { return std::max(few, qEnvironmentVariableIntValue("WIREPANE_KILLS")); }
    static QByteArray lines(int from, int count) {
        QByteArray text;
        for (int i = from; i < from + count; ++i)
            text += ninjsItem(u"u:%1"_s.arg(i), u"Headline %1"_s.arg(i), u"Story"_s.repeated(50), newsTime) +
                    '\n';
        return text;
    }
    int held(const QString& store) const {
        const auto backEnd = EmbeddedBackEnd::open(store);
        std::vector<CHeadlineTable> table;
        return backEnd ? backEnd.value()->BKQNEWS_iGetHeadlineTable(1, table, 0, u"20260302"_s) : -1;
    }
    // How many of the first `count` lines the store holds.
    static int heldOfFirst(const QString& store, int count) {
        const auto database = Database::open(store, Database::Mode::Read, std::chrono::seconds(5));
        std::int64_t found = -1;
        const QByteArray sql =
            "SELECT count(*) FROM headlines WHERE CAST(substr(identity, 3) AS INTEGER) < " +
            QByteArray::number(count);
        return database && database.value()->readNumber(sql.constData(), found) ? static_cast<int>(found)
                                                                                : -1;
    }
    static void expectSound(const QString& store) {
        const ProgramOutcome checked = runProgram({u"check"_s, u"--store"_s, store});
        EXPECT_EQ(checked.status, 0) << checked.out.toStdString();
    }
};

TEST_F(FeedKillTest, WhatWasAcknowledgedOutlivesAKill) {
    const QString store = scratch.path(u"news.wirepane"_s);
    std::mt19937 random(seed);
    int next = 0;
    int acknowledged = 0;
    int killedBusy = 0;
    const int rounds = kills(15);
    for (int round = 0; round < rounds; ++round) {
        QProcess feed;
        start(feed, {u"feed"_s, u"--store"_s, store, u"--receipts"_s});
        // The lines that may have been lost come again, as after any outage.
        next = acknowledged;
        constexpr int perRound = 4000;
        feed.write(lines(next, perRound));
        feed.waitForReadyRead(10000);
        QTest::qWait(static_cast<int>(random() % 60));
        feed.kill();
        feed.waitForFinished();
        qint64 said = 0;
        for (const QByteArray& line : feed.readAllStandardOutput().split('\n')) {
            const QJsonObject answer = QJsonDocument::fromJson(line).object();
            said = std::max(said, answer[u"lines"_s].toInteger());
        }
        acknowledged = next + static_cast<int>(said);
        killedBusy += said > 0 && said < perRound ? 1 : 0;
        const int inStore = held(store);
        ASSERT_GE(inStore, acknowledged) << round;
        ASSERT_LE(inStore, next + perRound) << round;
        if (round % 50 == 49)
            expectSound(store);
    }
    EXPECT_GT(killedBusy, rounds / 5);
    EXPECT_GT(acknowledged, 0);
    EXPECT_EQ(heldOfFirst(store, acknowledged), acknowledged);
    expectSound(store);
    RecordProperty("killedBusy", killedBusy);
    RecordProperty("acknowledged", acknowledged);
}

TEST_F(FeedKillTest, AKilledTerminalHasEveryFileThatItMovedAway) {
    std::mt19937 random(seed);
    const QDir spool(scratch.path(u"desk-spool"_s));
    ASSERT_TRUE(spool.mkpath(u"."_s));
    int number = 0;
    constexpr int perFile = 50;
    const int rounds = kills(6);
    for (int round = 0; round < rounds; ++round) {
        for (int i = 0; i < 40; ++i) {
            scratch.write(u"desk-spool/%1.jsonl"_s.arg(number), lines(number * perFile, perFile));
            ++number;
        }
        QProcess desk;
        start(desk, QStringList{u"--automation"_s, u"--offscreen"_s} + terminal(u"desk"_s));
        const QDir done(spool.filePath(u"done"_s));
        ASSERT_TRUE(QTest::qWaitFor([&] { return done.entryList(QDir::Files).size() > round * 20; }, 20000));
        QTest::qWait(static_cast<int>(random() % 100));
        desk.kill();
        desk.waitForFinished();
        const auto moved = done.entryList(QDir::Files).size();
        const auto waiting = spool.entryList(QDir::Files).size();
        EXPECT_EQ(moved + waiting, number);
        EXPECT_GE(held(storeOf(u"desk"_s)), moved * perFile);
        EXPECT_EQ(held(storeOf(u"desk"_s)) % perFile, 0) << "half a file";
    }
    EXPECT_EQ(QDir(spool.filePath(u"rejected"_s)).entryList(QDir::Files), QStringList{});
    expectSound(storeOf(u"desk"_s));
}

}  // namespace

}  // namespace wirepane
