// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/news_control_ids.h"
#include "tests/terminal/program/program_runner.h"
#include "tests/terminal/program/script_client.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

// A terminal with two headlines: "Second" with a story, above "First" with a longer one.
class OutputSessionTest : public testing::Test {
protected:
    OutputSessionTest()
        : terminal({u"--store"_s, scratch.path(u"news.wirepane"_s), u"--config"_s, scratch.path(u"config"_s),
                    u"--now"_s, u"2026-03-02T09:30:00"_s, u"--lang"_s, u"en"_s}) {
        terminal.result(u"view.open"_s, QJsonObject{{u"mask"_s, 1}});
        push(1, u"First"_s, u"One@@@@Two"_s);
        push(2, u"Second"_s, u"新聞"_s);
        terminal.result(u"idle"_s);
    }
    void push(int number, const QString& title, const QString& story) {
        const QDateTime time(QDate(2026, 3, 2), QTime(9, number));
        terminal.result(u"feed.push"_s, QJsonObject{{u"service"_s, 1},
                                                    {u"time"_s, time.toSecsSinceEpoch()},
                                                    {u"seq"_s, number},
                                                    {u"title"_s, title},
                                                    {u"category"_s, 1},
                                                    {u"symbol"_s, u""_s},
                                                    {u"related"_s, QJsonArray()},
                                                    {u"story"_s, story}});
    }
    void select(const QJsonArray& rows) {
        terminal.result(u"grid.select"_s, QJsonObject{{u"list"_s, 0}, {u"rows"_s, rows}});
    }
    QByteArray contents(const QString& name) const {
        QFile file(scratch.path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QJsonObject to(const QString& name) const { return {{u"path"_s, scratch.path(name)}}; }

    Scratch scratch;
    ScriptClient terminal;
};

TEST_F(OutputSessionTest, SavesAndPrintsWhatIsSelected) {
    select({0, 1});
    const int bytes = terminal.result(u"save.file"_s, to(u"news.txt"_s))[u"bytes"_s].toInt();
    const QByteArray hyphens = QByteArray(80, '-') + '\n';
    const QByteArray expected = " News No. 2\n\nTitle: Second\n\nStory: \xB7\x73\xBB\x44\n\n" + hyphens +
                                " News No. 1\n\nTitle: First\n\nStory: One\r\nTwo\n\n" + hyphens;
    EXPECT_EQ(contents(u"news.txt"_s).toStdString(), expected.toStdString());
    EXPECT_EQ(bytes, expected.size());
    EXPECT_EQ(terminal.result(u"print.pdf"_s, to(u"news.pdf"_s))[u"pages"_s].toInt(), 2);
    EXPECT_TRUE(contents(u"news.pdf"_s).startsWith("%PDF"));
    EXPECT_EQ(terminal.errorCode(u"save.file"_s, to(u"missing/news.txt"_s)), -32002);
    EXPECT_EQ(terminal.errorCode(u"save.file"_s, QJsonObject{{u"path"_s, u"x"_s}, {u"type"_s, u"doc"_s}}),
              -32602);
    select({});
    EXPECT_EQ(terminal.result(u"save.file"_s, to(u"none.txt"_s))[u"bytes"_s].toInt(), 0);
    EXPECT_EQ(terminal.endInput(), 0);
}

TEST_F(OutputSessionTest, AWaitIsEndedByItsAnswerOrWithTheTerminal) {
    terminal.result(u"feed.hold"_s, QJsonObject{{u"what"_s, u"stories"_s}, {u"on"_s, true}});
    select({1});
    const QJsonValue late = terminal.result(u"save.file"_s, to(u"late.txt"_s));
    EXPECT_EQ(late[u"bytes"_s].toInt(-1), 0);
    EXPECT_TRUE(late[u"waiting"_s].toBool());
    EXPECT_TRUE(contents(u"late.txt"_s).isEmpty());
    const QJsonValue state = terminal.result(u"view.state"_s);
    EXPECT_EQ(state[u"awaited"_s][u"save"_s].toInt(), 1);
    EXPECT_EQ(state[u"notice"_s].toString(), u"Waiting to save: 1 still to come"_s);
    terminal.result(u"feed.hold"_s, QJsonObject{{u"what"_s, u"stories"_s}, {u"on"_s, false}});
    QElapsedTimer waited;
    waited.start();
    while (contents(u"late.txt"_s).isEmpty() && waited.elapsed() < 5000)
        terminal.result(u"idle"_s);
    EXPECT_EQ(terminal.result(u"view.state"_s)[u"notice"_s].toString(), u""_s);
    EXPECT_TRUE(contents(u"late.txt"_s).contains("Story: \r\n2026/03/ 2 09:01:00One\r\nTwo\n\n"));
    terminal.result(u"feed.hold"_s, QJsonObject{{u"what"_s, u"stories"_s}, {u"on"_s, true}});
    EXPECT_EQ(terminal.result(u"print.pdf"_s, to(u"never.pdf"_s))[u"pages"_s].toInt(), 0);
    EXPECT_EQ(terminal.endInput(), 0);
    EXPECT_FALSE(QFile::exists(scratch.path(u"never.pdf"_s)));
}

TEST_F(OutputSessionTest, TheStoryDialogTellsWhatItShows) {
    while (terminal.result(u"view.state"_s)[u"storyShowType"_s].toInt() != 0)
        terminal.result(u"view.command"_s, QJsonObject{{u"id"_s, ids::showTypeButton}});
    select({0});
    terminal.result(u"view.command"_s, QJsonObject{{u"id"_s, ids::showStory}});
    const QJsonValue state = terminal.result(u"story.state"_s, QJsonObject{{u"where"_s, u"dialog"_s}});
    EXPECT_TRUE(state[u"visible"_s].toBool());
    EXPECT_EQ(state[u"title"_s].toString(), u"2026/03/02 09:02:00 \r\nSecond"_s);
    EXPECT_EQ(state[u"position"_s].toInt(-1), 0);
    EXPECT_EQ(state[u"table"_s].toInt(-1), 0);
}

}  // namespace

}  // namespace wirepane
