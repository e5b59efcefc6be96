// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/news_control_ids.h"
#include "tests/support/time_zone.h"
#include "tests/terminal/program/program_runner.h"
#include "tests/terminal/program/script_client.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QThread>

#include <cstdlib>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class DiarySessionTest : public testing::Test {
protected:
    DiarySessionTest()
        : terminal({u"--store"_s, store(), u"--config"_s, scratch.path(u"config"_s), u"--lang"_s, u"en"_s}) {
        terminal.result(u"view.open"_s, QJsonObject{{u"own"_s, true}});
    }
    QString store() const { return scratch.path(u"news.wirepane"_s); }
    void push(int number, const QString& title, const QString& story) {
        terminal.result(u"feed.push"_s,
                        QJsonObject{{u"service"_s, 1},
                                    {u"time"_s, QDateTime::currentSecsSinceEpoch() - 60 + number},
                                    {u"seq"_s, number},
                                    {u"title"_s, title},
                                    {u"category"_s, 1},
                                    {u"symbol"_s, u""_s},
                                    {u"related"_s, QJsonArray()},
                                    {u"story"_s, story}});
        rest();
    }
    // Until the diary has what is on the screen.
    void rest() {
        terminal.result(u"idle"_s);
        QElapsedTimer time;
        time.start();
        for (qint64 before = -1, now = 0; before != now && time.elapsed() < 5000;) {
            before = now;
            QThread::msleep(150);
            now = terminal.result(u"diary.state"_s)[u"entries"_s].toInteger();
        }
    }
    void keep(bool kept, bool words = true) {
        terminal.result(u"diary.choose"_s, QJsonObject{{u"kept"_s, kept}, {u"words"_s, words}});
        rest();
    }
    ProgramOutcome diary(const QStringList& arguments) const {
        return runProgram(QStringList{u"diary"_s} + arguments + QStringList{u"--store"_s, store()});
    }
    QByteArray contents(const QString& path) const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // The lines of all rows that are on the screen, as a replay writes them.
    QStringList rowsOnScreen() {
        QStringList lines;
        for (const auto& row :
             terminal.result(u"grid.read"_s, QJsonObject{{u"list"_s, 0}})[u"cells"_s].toArray())
            lines.append(row.toVariant().toStringList().join(u" | "_s));
        return lines;
    }
    // Of the last screen that a replay of the day shows, its rows.
    QStringList lastReplayed() const {
        const QStringList shown = diary({u"replay"_s, u"00:00-23:59:59"_s}).out.split(u'\n');
        QStringList rows;
        bool isStory = false;
        for (const QString& line : shown) {
            if (line.contains(u"view 1  "_s)) {
                rows.clear();
                isStory = false;
            }
            isStory = isStory || line == u"  ---"_s;
            if (!isStory && line.contains(u" | "_s))
                rows.append(line.mid(2));
        }
        return rows.mid(1);
    }

    // Where it is about noon: a replay is of one day.
    static QByteArray noonZone() {
        const int east = 12 - QDateTime::currentDateTimeUtc().time().hour();
        return east == 0 ? QByteArray("Etc/GMT")
                         : "Etc/GMT" + QByteArray(east > 0 ? "-" : "+") + QByteArray::number(std::abs(east));
    }

    TimeZone atNoon{noonZone().constData()};
    Scratch scratch;
    ScriptClient terminal;
};

TEST_F(DiarySessionTest, AReplayShowsTheRowsAndTheStoryThatWereOnTheScreen) {
    push(1, u"Before it is kept"_s, u"Nobody keeps this"_s);
    EXPECT_FALSE(QFile::exists(store() + u".diary"_s)) << "off unless it is switched on";
    keep(true);
    EXPECT_EQ(lastReplayed(), rowsOnScreen());
    push(2, u"Second, with, \"commas\""_s, u"The second's story@@@@in two lines"_s);
    push(3, u"第三則"_s, u"第三則的內文"_s);
    terminal.result(u"grid.select"_s,
                    QJsonObject{{u"list"_s, 0}, {u"rows"_s, QJsonArray{1}}, {u"focus"_s, 1}});
    rest();
    EXPECT_EQ(rowsOnScreen().size(), 3);
    EXPECT_EQ(lastReplayed(), rowsOnScreen());
    const QString shown = diary({u"replay"_s, u"00:00-23:59:59"_s}).out;
    EXPECT_TRUE(shown.contains(u"\n  in two lines"_s)) << shown.toStdString();
    // At the end of the session nothing is on the screen any more.
    terminal.endInput();
    const QString later = QDateTime::currentDateTime().addSecs(1).toString(u"H:mm:ss"_s);
    EXPECT_EQ(diary({u"replay"_s, later + u"-23:59:59"_s}).out, QString());
}

TEST_F(DiarySessionTest, WhatTheUserDoesIsKeptThroughAKillAndChangesShow) {
    push(1, u"First"_s, u"One"_s);
    push(2, u"Second"_s, u"Two"_s);
    keep(true);
    terminal.result(u"grid.select"_s,
                    QJsonObject{{u"list"_s, 0}, {u"rows"_s, QJsonArray{0, 1}}, {u"focus"_s, 0}});
    terminal.result(u"save.file"_s, QJsonObject{{u"path"_s, scratch.path(u"saved.txt"_s)}});
    terminal.result(u"print.pdf"_s, QJsonObject{{u"path"_s, scratch.path(u"printed.pdf"_s)}});
    terminal.result(u"view.command"_s, QJsonObject{{u"id"_s, ids::markRead}});
    rest();
    terminal.kill();
    const ProgramOutcome sound = diary({u"verify"_s});
    EXPECT_EQ(sound.status, 0) << sound.out.toStdString();

    ASSERT_EQ(diary({u"export"_s, scratch.path(u"diary.json"_s)}).status, 0);
    const QJsonObject whole = QJsonDocument::fromJson(contents(scratch.path(u"diary.json"_s))).object();
    QStringList acts;
    for (const auto& entry : whole[u"entries"_s].toArray()) {
        const QString kind = entry[u"kind"_s].toString();
        if (kind == u"saved"_s || kind == u"printed"_s || kind == u"marked read"_s)
            acts.append(kind + u' ' + QString::number(entry[u"count"_s].toInt()));
        if (kind == u"row"_s) {
            EXPECT_GE(entry[u"received"_s].toInteger(), entry[u"time"_s].toInteger());
            EXPECT_GE(entry[u"at"_s].toInteger() / 1000, entry[u"received"_s].toInteger());
        }
    }
    EXPECT_EQ(acts, (QStringList{u"saved 2"_s, u"printed 2"_s, u"marked read 2"_s}));
    const QString seal = whole[u"head"_s][u"seal"_s].toString();
    EXPECT_TRUE(sound.out.contains(seal));
    ASSERT_EQ(diary({u"export"_s, scratch.path(u"diary.csv"_s)}).status, 0);
    EXPECT_TRUE(contents(scratch.path(u"diary.csv"_s)).contains(seal.toLatin1()));
    ASSERT_EQ(diary({u"export"_s, scratch.path(u"diary.pdf"_s)}).status, 0);
    EXPECT_TRUE(contents(scratch.path(u"diary.pdf"_s)).startsWith("%PDF"));

    QByteArray bytes = contents(store() + u".diary"_s);
    bytes.replace("First", "Fjrst");
    QFile file(store() + u".diary"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    EXPECT_EQ(diary({u"verify"_s}).status, 1);
}

TEST_F(DiarySessionTest, TheWordsOfSearchesCanBeLeftOut) {
    push(1, u"Copper rises"_s, u"One"_s);
    const auto search = [&](const QString& words) {
        terminal.result(u"input.key"_s, QJsonObject{{u"key"_s, u"Ctrl+F"_s}});
        terminal.result(u"control.set"_s, QJsonObject{{u"id"_s, ids::searchEdit}, {u"text"_s, words}});
        terminal.result(u"input.key"_s, QJsonObject{{u"target"_s, ids::searchEdit}, {u"key"_s, u"Return"_s}});
        rest();
    };
    keep(true, false);
    search(u"zinc"_s);
    keep(true, true);
    search(u"copper"_s);
    terminal.endInput();
    const QByteArray kept = contents(store() + u".diary"_s);
    EXPECT_EQ(kept.count("\"kind\":\"searched\""), 2);
    EXPECT_FALSE(kept.contains("zinc"));
    EXPECT_TRUE(kept.contains("\"words\":\"copper\""));
}

TEST_F(DiarySessionTest, WrongArgumentsAreNamed) {
    struct Case {
        QStringList arguments;
        QString said;
    };
    const Case cases[] = {
        {{}, u"needs one of"_s},
        {{u"burn"_s}, u"needs one of"_s},
        {{u"verify"_s, u"more"_s}, u"no more arguments"_s},
        {{u"export"_s}, u"one argument more"_s},
        {{u"export"_s, u"x.txt"_s}, u"ends neither"_s},
        {{u"replay"_s, u"10:00"_s}, u"is not a span"_s},
        {{u"replay"_s, u"10:05-10:00"_s}, u"is not a span"_s},
        {{u"replay"_s, u"10:00-10:05"_s, u"--day"_s, u"today"_s}, u"is not a day"_s},
        {{u"verify"_s}, u"There is no diary"_s},
    };
    for (const Case& wrong : cases) {
        const ProgramOutcome outcome = diary(wrong.arguments);
        EXPECT_EQ(outcome.status, 2) << wrong.said.toStdString();
        EXPECT_TRUE(outcome.err.contains(wrong.said)) << outcome.err.toStdString();
    }
}

}  // namespace

}  // namespace wirepane
