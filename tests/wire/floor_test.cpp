// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/terminal/program/program_runner.h"
#include "tests/terminal/program/script_client.h"
#include "tests/wire/test_server.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

constexpr int itemsOfFile = 150;
constexpr qint64 patienceMs = 60000;
constexpr unsigned seed = 20261123;

class FloorTest : public testing::Test {
protected:
    void SetUp() override {
        if (!TestServer::isInstalled())
            GTEST_SKIP() << "No PostgreSQL server is installed.";
        server = std::make_unique<TestServer>();
        ASSERT_TRUE(server->start());
        const ProgramOutcome made =
            runProgram({u"wire"_s, u"init"_s, u"--service"_s, u"floor"_s, u"--zone"_s, u"Asia/Hong_Kong"_s});
        ASSERT_EQ(made.status, 0) << qPrintable(made.err);
    }

    QString writeFile(int number, const QString& word = u"Headline"_s) const {
        QByteArray lines;
        for (int i = 0; i < itemsOfFile; ++i) {
            const QString name = u"%1:%2"_s.arg(number).arg(i);
            const QString when =
                word == u"Headline"_s ? u"2026-11-23T%1:00:00Z"_s : u"2026-11-23T%1:30:00Z"_s;
            lines += ninjsItem(name, word + u' ' + name, u"Story "_s.repeated(i),
                               when.arg(i % 24, 2, 10, QChar(u'0'))) +
                     '\n';
        }
        return scratch.write(u"%1-%2.jsonl"_s.arg(word).arg(number), lines);
    }
    QStringList publishing(const QString& point, const QString& file) const {
        return {u"publish"_s, u"--wire"_s, u"floor"_s, u"--store"_s, scratch.path(point), file};
    }
    ProgramOutcome verify(const QString& store) const {
        return runProgram(
            {u"wire"_s, u"verify"_s, u"--service"_s, u"floor"_s, u"--store"_s, scratch.path(store)});
    }
    std::unique_ptr<ScriptClient> terminal(const QString& store) const {
        return std::make_unique<ScriptClient>(QStringList{u"--wire"_s, u"floor"_s, u"--store"_s,
                                                          scratch.path(store), u"--config"_s,
                                                          scratch.path(store + u"-settings"_s)});
    }
    // Until the store is level with the wire; what the last comparison said.
    ProgramOutcome awaitLevel(const QString& store) const {
        QElapsedTimer clock;
        clock.start();
        ProgramOutcome outcome;
        do
            outcome = verify(store);
        while (outcome.status != 0 && clock.elapsed() < patienceMs);
        return outcome;
    }

    Scratch scratch;
    std::unique_ptr<TestServer> server;
};

int killsWanted() {
    const int wanted = qEnvironmentVariableIntValue("WIREPANE_WIRE_KILLS");
    return wanted > 0 ? wanted : 6;
}

}  // namespace

TEST_F(FloorTest, TwoIngestPointsAndATerminalOfAnotherZoneHoldTheSame) {
    const auto follower = terminal(u"follower"_s);
    for (const auto& [point, file] : {std::pair{u"one"_s, writeFile(1)}, std::pair{u"two"_s, writeFile(2)},
                                      std::pair{u"one"_s, writeFile(1, u"Corrected"_s)}}) {
        const ProgramOutcome published = runProgram(publishing(point, file));
        EXPECT_EQ(published.out.trimmed(), u"%1 published, 0 already there, 0 rejected"_s.arg(itemsOfFile))
            << qPrintable(published.err);
    }
    const ProgramOutcome again = runProgram(publishing(u"two"_s, writeFile(1)));
    EXPECT_EQ(again.out.trimmed(), u"0 published, %1 already there, 0 rejected"_s.arg(itemsOfFile));
    for (const QString& store : {u"follower"_s, u"two"_s}) {
        const ProgramOutcome level = awaitLevel(store);
        EXPECT_EQ(level.status, 0) << qPrintable(level.out + level.err);
    }
    const ProgramOutcome own =
        runProgram({u"import"_s, u"--store"_s, scratch.path(u"follower"_s), writeFile(3)});
    EXPECT_EQ(own.status, 1);
    EXPECT_EQ(verify(u"follower"_s).status, 0);
}

TEST_F(FloorTest, ASnapshotIsAStoreToBeginWith) {
    ASSERT_EQ(runProgram(publishing(u"one"_s, writeFile(1))).status, 0);
    ASSERT_EQ(runProgram({u"backup"_s, u"--store"_s, scratch.path(u"one"_s), scratch.path(u"late"_s)}).status,
              0);
    ASSERT_EQ(runProgram(publishing(u"one"_s, writeFile(2))).status, 0);
    EXPECT_NE(verify(u"late"_s).status, 0);
    const auto joiner = terminal(u"late"_s);
    const ProgramOutcome level = awaitLevel(u"late"_s);
    EXPECT_EQ(level.status, 0) << qPrintable(level.out + level.err);
}

TEST_F(FloorTest, NothingIsLostOrDoubledWhoeverIsKilled) {
    std::mt19937 chance(seed);
    auto follower = terminal(u"follower"_s);
    const int kills = killsWanted();
    for (int kill = 0; kill < kills; ++kill) {
        const QString file = writeFile(kill);
        QProcess publisher;
        publisher.start(programFile(), publishing(u"one"_s, file));
        QThread::msleep(std::uniform_int_distribution<unsigned long>(20, 400)(chance));
        if (kill % 3 == 0) {
            publisher.kill();
        } else if (kill % 3 == 1) {
            follower->kill();
            follower = terminal(u"follower"_s);
        } else {
            server->kill();
            ASSERT_TRUE(server->start());
        }
        publisher.waitForFinished();
        const ProgramOutcome published = runProgram(publishing(u"one"_s, file));
        ASSERT_EQ(published.status, 0) << "kill " << kill << ": " << qPrintable(published.err);
        for (const QString& store : {u"one"_s, u"follower"_s}) {
            const ProgramOutcome level = awaitLevel(store);
            ASSERT_EQ(level.status, 0) << "kill " << kill << ": " << qPrintable(level.out + level.err);
        }
    }
    const ProgramOutcome all = verify(u"follower"_s);
    EXPECT_TRUE(all.out.contains(u"%1 rows"_s.arg(kills * itemsOfFile))) << qPrintable(all.out);
}

}  // namespace wirepane
