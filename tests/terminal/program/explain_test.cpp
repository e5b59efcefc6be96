// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/terminal/program/program_runner.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

// A store with an item of 1 March and one of 2 March, and the user's settings, of another service.
class ExplainTest : public testing::Test {
protected:
    void SetUp() override {
        const QByteArray lines =
            ninjsItem(u"u:1"_s, u"Copper gains"_s, u"Body"_s, u"2026-03-01T02:00:00Z"_s) + '\n' +
            ninjsItem(u"u:2"_s, u"Copper falls"_s, u"Body"_s, u"2026-03-02T02:00:00Z"_s) + '\n';
        runProgram({u"import"_s, u"--store"_s, store, scratch.write(u"wire.jsonl"_s, lines)});
        keys = runProgram({u"search"_s, u"--store"_s, store, u"--json"_s, u"copper"_s})
                   .out.split(u'\n', Qt::SkipEmptyParts);
        QDir().mkpath(config);
    }

    ProgramOutcome explain(const QString& key, const QString& now = u"2026-03-02T12:00:00Z"_s) {
        return runProgram({u"--explain"_s, key, u"--store"_s, store, u"--config"_s, config, u"--now"_s, now});
    }

    Scratch scratch;
    const QString store = scratch.path(u"news.wirepane"_s);
    const QString config = scratch.path(u"config"_s);
    QStringList keys;  // as search prints them, the newest first
};

TEST_F(ExplainTest, TellsOfEachListWhyTheHeadlineIsThereOrNot) {
    ASSERT_EQ(keys.size(), 2);
    const ProgramOutcome listed = explain(keys[0]);
    EXPECT_EQ(listed.status, 0) << listed.err.toStdString();
    const QStringList lines = listed.out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_GE(lines.size(), 5) << listed.out.toStdString();
    EXPECT_TRUE(lines[0].endsWith(u"  Copper falls"_s)) << listed.out.toStdString();
    const auto holds = [](const ProgramOutcome& outcome, const QString& text) {
        return outcome.out.contains(text) ? testing::AssertionSuccess()
                                          : testing::AssertionFailure() << outcome.out.toStdString();
    };
    EXPECT_TRUE(holds(listed,
                      u"All News: row 1: its service, 1, is ticked; it is of the list's day, "
                      "20260302."_s));
    EXPECT_TRUE(holds(listed,
                      u"Relation Search: not there: its service, 1, is ticked; it is of the list's "
                      "day, 20260302; no key set is ticked."_s));
    EXPECT_TRUE(holds(listed, u"Search: not there: its service, 1, is ticked; nothing was searched for."_s));
    EXPECT_TRUE(holds(listed, u"Warrants: not there: it is of service 1, not 52."_s));
    EXPECT_TRUE(holds(explain(keys[1]),
                      u"All News: not there: its service, 1, is ticked; it is of 20260301, "
                      "the list of 20260302."_s));
    EXPECT_TRUE(holds(explain(keys[0], u"2026-03-02T01:00:00Z"_s),
                      u"All News: not there: the back end does not tell it before its time."_s));
    EXPECT_TRUE(QDir(config).isEmpty()) << "the user's settings stay as they are";
}

TEST_F(ExplainTest, TellsWhatIsWrongWithAKey) {
    struct Case {
        QString key;
        QString said;
    };
    QString other = keys.value(0);
    const QString unknown = other.replace(u"\"service\":1"_s, u"\"service\":2"_s);
    const Case cases[] = {
        {unknown, u"There is no headline %1 in "_s.arg(unknown)},
        {u"12"_s, u"--explain takes a line of \"search --json\""_s},
        {u"{\"service\":1,\"time\":\"2026-03-02T02:00:00Z\"}"_s, u"--explain takes a line of"_s},
        {u"{\"service\":300,\"sequence\":1,\"time\":\"2026-03-02T02:00:00Z\"}"_s,
         u"--explain takes a line of"_s},
        {u"{\"service\":1,\"sequence\":1,\"time\":\"yesterday\"}"_s, u"--explain takes a line of"_s},
        {QString(), u"--explain takes a line of"_s},
    };
    for (const Case& c : cases) {
        const ProgramOutcome outcome = explain(c.key);
        EXPECT_EQ(outcome.status, 2) << c.key.toStdString();
        EXPECT_EQ(outcome.out, QString());
        EXPECT_TRUE(outcome.err.contains(c.said)) << outcome.err.toStdString();
    }
    const ProgramOutcome noStore = runProgram(
        {u"--explain"_s, keys.value(0), u"--store"_s, scratch.path(u"none"_s), u"--config"_s, config});
    EXPECT_EQ(noStore.status, 2);
    EXPECT_FALSE(QFile::exists(scratch.path(u"none"_s)));
}

}  // namespace

}  // namespace wirepane
