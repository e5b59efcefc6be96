// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/source_formats.h"
#include "tests/terminal/program/program_runner.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class CommandLineTest : public testing::Test {
protected:
    ProgramOutcome import(const QStringList& files, const QStringList& options = {}) {
        return runProgram(QStringList{u"import"_s, u"--store"_s, store} + options + files);
    }
    ProgramOutcome check() { return runProgram({u"check"_s, u"--store"_s, store}); }

    Scratch scratch;
    QString store = scratch.path(u"below/a/news.wirepane"_s);
    QString recent = QDateTime::currentDateTimeUtc().addDays(-1).toString(Qt::ISODate);
};

TEST_F(CommandLineTest, ImportTellsWhatBecameOfEachItem) {
    const QByteArray lines = ninjsItem(u"u:1"_s, u"One"_s, u"Body"_s, recent) + '\n' +
                             ninjsItem(u"u:2"_s, u""_s, u""_s, recent) + '\n' +
                             ninjsItem(u"u:3"_s, u"Three"_s, u"Body"_s, recent) + '\n';
    const QString file = scratch.write(u"wire.jsonl"_s, lines);
    const ProgramOutcome first = import({file});
    EXPECT_EQ(first.status, 1);
    EXPECT_EQ(first.out, u"2 taken in, 0 already there, 1 rejected\n"_s);
    EXPECT_TRUE(first.err.contains(QDir::toNativeSeparators(file) + u": line 2"_s))
        << first.err.toStdString();
    EXPECT_FALSE(first.err.contains(u"--now"_s)) << first.err.toStdString();

    const QString whole = scratch.write(u"whole.json"_s, ninjsItem(u"u:3"_s, u"Three"_s, u"Body"_s, recent));
    const ProgramOutcome again = import({whole});
    EXPECT_EQ(again.status, 0);
    EXPECT_EQ(again.out, u"0 taken in, 1 already there, 0 rejected\n"_s);
    const ProgramOutcome checked = check();
    EXPECT_EQ(checked.status, 0) << checked.out.toStdString() << checked.err.toStdString();
}

TEST_F(CommandLineTest, ExportWritesADayOrWhatASearchFinds) {
    const QByteArray lines =
        ninjsItem(u"u:1"_s, u"臺積電 gains"_s, u"Copper"_s, u"2026-03-02T01:00:00Z"_s) + '\n' +
        ninjsItem(u"u:2"_s, u"Copper falls"_s, u"Café"_s, u"2026-03-02T02:00:00Z"_s) + '\n';
    import({scratch.write(u"wire.jsonl"_s, lines)});
    const QString file = scratch.path(u"news.txt"_s);
    const auto run = [&](const QStringList& arguments) {
        return runProgram(QStringList{u"export"_s, u"--store"_s, store, u"--lang"_s, u"en"_s} + arguments);
    };
    const auto text = [](const QString& name) {
        QFile written(name);
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    };
    const ProgramOutcome day = run({u"--day"_s, u"20260302"_s, file});
    EXPECT_EQ(day.status, 0) << day.err.toStdString();
    EXPECT_TRUE(day.err.contains(u"(1 in all)"_s)) << day.err.toStdString();
    EXPECT_EQ(day.out, u"%1 bytes in %2\n"_s.arg(text(file).size()).arg(QDir::toNativeSeparators(file)));
    EXPECT_LT(text(file).indexOf("Copper falls"), text(file).indexOf("\xBB\x4F\xBF\x6E\xB9\x71 gains"));
    EXPECT_TRUE(text(file).contains("Caf\xA1\xBC"));

    EXPECT_EQ(run({u"--utf8"_s, file, u"café"_s}).status, 0);
    EXPECT_TRUE(text(file).contains("Café"));
    EXPECT_FALSE(text(file).contains("gains"));
    const QString pages = scratch.path(u"news.pdf"_s);
    EXPECT_TRUE(run({u"--day"_s, u"20260302"_s, pages}).out.startsWith(u"2 pages"_s));
    EXPECT_TRUE(text(pages).startsWith("%PDF"));

    EXPECT_EQ(run({u"--day"_s, u"19990101"_s, file}).status, 1);
    EXPECT_TRUE(text(file).contains("Café")) << "the old file stays";
    const QList<QStringList> unusable{{},
                                      {u"--day"_s, u"2026"_s, file},
                                      {u"--day"_s, u"20260302"_s, file, u"copper"_s},
                                      {u"--day"_s, u"20260302"_s, scratch.path(u"missing/news.txt"_s)},
                                      {u"--day"_s, u"20260302"_s, u"--paper"_s, u"Z9"_s, pages}};
    for (const QStringList& arguments : unusable) {
        const ProgramOutcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments.join(u' ').toStdString();
        EXPECT_FALSE(outcome.err.isEmpty());
    }
}

TEST_F(CommandLineTest, ExportLeavesOutWhatHasNoStoryAndKeepsTitlesWhole) {
    const QString title = u"Copper "_s + QString(120, u'x');
    const auto run = [&](const QString& day, const QString& file) {
        return runProgram(
            {u"export"_s, u"--store"_s, store, u"--lang"_s, u"en"_s, u"--utf8"_s, u"--day"_s, day, file});
    };
    import({scratch.write(u"wire.jsonl"_s,
                          ninjsItem(u"u:1"_s, u"Flash"_s, {}, u"2026-03-01T01:00:00Z"_s) + '\n' +
                              ninjsItem(u"u:2"_s, u"Another flash"_s, {}, u"2026-03-02T02:00:00Z"_s) + '\n' +
                              ninjsItem(u"u:3"_s, title, u"Body"_s, u"2026-03-02T03:00:00Z"_s) + '\n')});
    const QString file = scratch.write(u"news.txt"_s, "what was here before");
    const auto contents = [&] {
        QFile written(file);
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    };
    const ProgramOutcome nothing = run(u"20260301"_s, file);
    EXPECT_EQ(nothing.status, 2);
    EXPECT_TRUE(nothing.err.contains(u"Nothing was put out"_s)) << nothing.err.toStdString();
    EXPECT_EQ(contents(), "what was here before");
    const ProgramOutcome one = run(u"20260302"_s, file);
    EXPECT_EQ(one.status, 0) << one.err.toStdString();
    EXPECT_TRUE(one.err.contains(u"no story: 1"_s)) << one.err.toStdString();
    EXPECT_EQ(contents().count('x'), 120);
    EXPECT_FALSE(contents().contains("flash"));
}

TEST_F(CommandLineTest, SearchPrintsWhatHoldsTheKeywords) {
    const QByteArray lines =
        ninjsItem(u"u:1"_s, u"臺積電 gains 2.5%"_s, u"Copper"_s, u"2026-03-02T01:00:00Z"_s) + '\n' +
        ninjsItem(u"u:2"_s, u"Copper falls"_s, u"积电"_s, u"2026-03-02T02:00:00Z"_s) + '\n';
    import({scratch.write(u"wire.jsonl"_s, lines)});
    const auto search = [this](const QStringList& arguments) {
        return runProgram(QStringList{u"search"_s, u"--store"_s, store} + arguments);
    };
    const QString gains = u"臺積電 gains 2.5%\n"_s;
    const QString falls = u"Copper falls\n"_s;
    const QList<std::pair<QStringList, QStringList>> cases{
        {{u"积電"_s}, {falls, gains}},
        {{u"copper"_s, u"--title"_s}, {falls}},
        {{u"copper"_s, u"--story"_s}, {gains}},
        {{u"copper"_s, u"gains"_s}, {gains}},
        {{u"gains"_s, u"falls"_s, u"--any"_s, u"--limit"_s, u"1"_s}, {falls}},
        {{u"copper"_s, u"--service"_s, u"9"_s}, {}},
        {{u"copper"_s, u"--symbol"_s, u"16:2330"_s}, {}},
        {{u"\"(*"_s}, {}},
        {{u"copper -gains"_s, u"--query"_s}, {falls}},
        {{u"--query"_s, u"--"_s, u"-title:copper"_s, u"積電 | x"_s}, {gains}},
        {{u"copper on:2026-03-02 NEAR/1"_s}, {}},
    };
    for (const auto& [arguments, titles] : cases) {
        const ProgramOutcome outcome = search(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
        EXPECT_EQ(outcome.out.count(u'\n'), titles.size()) << outcome.out.toStdString();
        qsizetype at = 0;
        for (const QString& title : titles) {
            at = outcome.out.indexOf(title, at);
            EXPECT_GE(at, 0) << outcome.out.toStdString();
        }
    }
    EXPECT_EQ(search({u"gains"_s, u"--json"_s}).out,
              u"{\"sequence\":1,\"service\":1,\"time\":\"2026-03-02T01:00:00Z\",\"title\":\"臺積電 gains "
              u"2.5%\"}\n");
    EXPECT_EQ(search({}).status, 2);
    const ProgramOutcome faulty = search({u"--query"_s, u"copper titel:x"_s});
    EXPECT_EQ(faulty.status, 2);
    EXPECT_TRUE(faulty.err.contains(u"\"titel\" (character 8)"_s)) << faulty.err.toStdString();
    EXPECT_EQ(search({u"x"_s, u"--symbol"_s, u"2330"_s}).status, 2);
    EXPECT_EQ(runProgram({u"search"_s, u"--store"_s, scratch.path(u"none"_s), u"x"_s}).status, 2);
}

TEST_F(CommandLineTest, RowsTellAllThatIsKnownAndAreTakenInAgain) {
    const QByteArray item =
        R"({"uri":"u:1","versioncreated":"2026-03-02T01:00:00Z","headline":"Copper, \"red\" gains",)"
        R"("body_text":"One.\n\nTwo.","subject":[{"name":"Metals"}],)"
        R"("organisations":[{"symbols":[{"ticker":"2330","exchange":"XTAI"}]}]})";
    import(
        {scratch.write(u"wire.jsonl"_s,
                       item + '\n' + ninjsItem(u"u:2"_s, u"Copper flash"_s, {}, u"2026-03-02T02:00:00Z"_s))});
    const auto rows = [](const QString& from, const QString& form) {
        return runProgram({u"search"_s, u"--store"_s, from, u"--format"_s, form, u"copper"_s}).out;
    };
    const QString csv = rows(store, u"csv"_s);
    EXPECT_EQ(csv.section(u"\r\n"_s, 0, 0),
              u"time,service,service name,sequence,topic,symbols,title,story,pubstatus,"
              "price then,price,farthest price,price moment"_s);
    EXPECT_TRUE(csv.section(u"\r\n"_s, 2, 2)
                    .endsWith(u",1,Metals,16:2330,\"Copper, \"\"red\"\" gains\",\"One.\nTwo.\",usable,,,,"_s))
        << csv.toStdString();
    const QJsonArray list = QJsonDocument::fromJson(rows(store, u"json"_s).toUtf8()).array();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list.at(1)[u"story"_s].toString(), u"One.\nTwo."_s);
    EXPECT_EQ(list.at(1)[u"symbols"_s].toArray().at(0).toString(), u"16:2330"_s);
    const QString other = scratch.path(u"other.wirepane"_s);
    EXPECT_EQ(runProgram({u"import"_s, u"--store"_s, other,
                          scratch.write(u"rows.ndjson"_s, rows(store, u"ninjs"_s).toUtf8())})
                  .status,
              0);
    const auto unnumbered = [](QString text) {
        return text.replace(QRegularExpression(u",1,([^,]*),\\d+,"_s), u",\\1,"_s).toStdString();
    };
    EXPECT_EQ(unnumbered(rows(other, u"csv"_s)), unnumbered(csv)) << "what comes out goes in again";

    for (const QString& ending : {u"csv"_s, u"json"_s}) {
        const QString file = scratch.write(u"news."_s + ending, "what was here before");
        EXPECT_EQ(runProgram({u"export"_s, u"--store"_s, store, file, u"copper"_s}).status, 0);
        QFile written(file);
        EXPECT_TRUE(written.open(QIODevice::ReadOnly));
        EXPECT_EQ(QString::fromUtf8(written.readAll()), rows(store, ending));
    }
    EXPECT_EQ(rows(store, u"odd"_s), QString());
    EXPECT_EQ(runProgram({u"search"_s, u"--store"_s, store, u"--format"_s, u"json"_s, u"--follow"_s, u"x"_s})
                  .status,
              2);
}

// Batches of news of random days come while the search is made and after it.
TEST_F(CommandLineTest, AFollowedSearchGivesEachPieceOnceAndEndsInOrder) {
    std::mt19937 random(5);
    const auto batch = [&](int number) {
        QByteArray lines;
        for (int i = 0; i < 20; ++i)
            lines += ninjsItem(u"u:%1:%2"_s.arg(number).arg(i), i % 3 == 0 ? u"Tin"_s : u"Copper %1"_s.arg(i),
                               u"Body"_s,
                               u"2026-03-%1T0%2:00:00Z"_s.arg(1 + int(random() % 28), 2, 10, QChar(u'0'))
                                   .arg(random() % 10)) +
                     '\n';
        import({scratch.write(u"batch%1.jsonl"_s.arg(number), lines)});
    };
    batch(0);
    QProcess following;
    following.start(programFile(),
                    {u"search"_s, u"--store"_s, store, u"--json"_s, u"--follow"_s, u"copper"_s});
    ASSERT_TRUE(following.waitForStarted());
    for (int number = 1; number <= 6; ++number)
        batch(number);
    const auto found = [&] {
        QStringList lines = runProgram({u"search"_s, u"--store"_s, store, u"--json"_s, u"copper"_s})
                                .out.split(u'\n', Qt::SkipEmptyParts);
        lines.sort();
        return lines;
    };
    QByteArray given;
    const QStringList wanted = found();
    ASSERT_EQ(wanted.size(), 7 * 13);
    QDeadlineTimer deadline(20000);
    while (given.count('\n') < wanted.size() && !deadline.hasExpired()) {
        following.waitForReadyRead(500);
        given += following.readAllStandardOutput();
    }
    following.terminate();
    ASSERT_TRUE(following.waitForFinished());
    given += following.readAllStandardOutput();
    QStringList lines = QString::fromUtf8(given).split(u'\n', Qt::SkipEmptyParts);
    lines.sort();
    EXPECT_EQ(lines, wanted);
    EXPECT_EQ(following.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(following.exitCode(), 0);

    // Somebody who reads one line.
    QProcess shell;
    shell.start(u"sh"_s, {u"-c"_s, u"{ \"$0\" \"$@\"; echo $? >&2; } | head -n 1"_s, programFile(),
                          u"search"_s, u"--store"_s, store, u"--follow"_s, u"copper"_s});
    EXPECT_TRUE(shell.waitForFinished(10000));
    EXPECT_TRUE(shell.readAllStandardError().endsWith("0\n"));
    EXPECT_EQ(shell.readAllStandardOutput().count('\n'), 1);
}

TEST_F(CommandLineTest, WhatAConsoleWouldObeyIsWrittenOut) {
    const QString file = scratch.write(u"bad\u001b[2J\u202e.json"_s, "nothing");
    const ProgramOutcome outcome = import({file});
    EXPECT_FALSE(outcome.err.contains(QChar(0x1b)) || outcome.err.contains(QChar(0x202e)));
    EXPECT_TRUE(outcome.err.contains(u"bad\\u001b[2J\\u202e.json: "_s)) << outcome.err.toStdString();
}

TEST_F(CommandLineTest, ImportOfOldNewsNamesTheOptionThatShowsIt) {
    const QString file =
        scratch.write(u"old.json"_s, ninjsItem(u"u:1"_s, u"Old"_s, u"Body"_s, u"2015-03-02T08:00:00Z"_s));
    const ProgramOutcome now = import({file});
    EXPECT_EQ(now.status, 0);
    const QRegularExpressionMatch moment =
        QRegularExpression(u"255 days.* (--now) ([-0-9T:]+),"_s).match(now.err);
    ASSERT_TRUE(moment.hasMatch()) << now.err.toStdString();
    const ProgramOutcome then = import({file}, {moment.captured(1), moment.captured(2)});
    EXPECT_FALSE(then.err.contains(u"--now"_s)) << then.err.toStdString();
}

TEST_F(CommandLineTest, WhatCannotBeReadEndsWithTheUnusableStatus) {
    const QString binary = scratch.write(u"picture.png"_s, QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
    const ProgramOutcome unknown = import({binary, scratch.path(u"absent.json"_s)});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_TRUE(unknown.err.contains(u"picture.png"_s) && unknown.err.contains(u"absent.json"_s))
        << unknown.err.toStdString();
    EXPECT_EQ(unknown.out, u"0 taken in, 0 already there, 0 rejected\n"_s);
}

TEST_F(CommandLineTest, AStoreThatIsNoneIsNamedAndLeftAlone) {
    const QByteArray content(8192, 'x');
    const QString notAStore = scratch.write(u"letter.txt"_s, content);
    const QString file = scratch.write(u"one.json"_s, ninjsItem(u"u:1"_s, u"One"_s, u"Body"_s, recent));
    const QString config = scratch.path(u"config"_s);
    const QList<QStringList> commands{
        {u"import"_s, u"--store"_s, notAStore, file},
        {u"sample"_s, u"--store"_s, notAStore},
        {u"check"_s, u"--store"_s, notAStore},
        {u"backup"_s, u"--store"_s, notAStore, scratch.path(u"copy.wirepane"_s)},
        {u"--automation"_s, u"--store"_s, notAStore, u"--config"_s, config},
        {u"--tour"_s, scratch.path(u"tour"_s), u"--store"_s, notAStore, u"--config"_s, config},
    };
    for (const QStringList& command : commands) {
        const ProgramOutcome outcome = runProgram(command);
        EXPECT_EQ(outcome.status, 2) << command.join(u' ').toStdString();
        EXPECT_TRUE(outcome.err.contains(notAStore)) << outcome.err.toStdString();
        EXPECT_TRUE(outcome.out.isEmpty()) << outcome.out.toStdString();
    }
    QFile letter(notAStore);
    ASSERT_TRUE(letter.open(QIODevice::ReadOnly));
    EXPECT_EQ(letter.readAll(), content);
}

TEST_F(CommandLineTest, CheckOfAnAbsentStoreMakesNone) {
    EXPECT_EQ(check().status, 2);
    EXPECT_FALSE(QFileInfo::exists(store));
}

TEST_F(CommandLineTest, WrongArgumentsAreSaidAndChangeNothing) {
    const QList<std::pair<QStringList, QString>> wrong{
        {{u"import"_s}, u"file"_s},
        {{u"import"_s, u"--service"_s, u"0"_s, u"x"_s}, u"--service"_s},
        {{u"import"_s, u"--service"_s, u"256"_s, u"x"_s}, u"--service"_s},
        {{u"import"_s, u"--no-such"_s, u"x"_s}, u"no-such"_s},
        {{u"sample"_s, u"--days"_s, u"many"_s}, u"--days"_s},
        {{u"sample"_s, u"extra"_s}, u"extra"_s},
        {{u"sample"_s, u"--now"_s, u"yesterday"_s}, u"yesterday"_s},
        {{u"check"_s, u"extra"_s}, u"extra"_s},
        {{u"backup"_s}, u"file"_s},
        {{u"rehearse"_s, u"gold ("_s}, u"6"_s},
        {{u"rehearse"_s, u"--days"_s, u"0"_s, u"gold"_s}, u"--days"_s},
        {{u"--automation"_s, u"--lang"_s, u"fr"_s}, u"--lang"_s},
        {{u"--automation"_s, u"imprt"_s}, u"imprt"_s},
        {{u"--automation"_s, u"--now"_s, u"2026-02-30T00:00:00"_s}, u"--now"_s},
    };
    for (const auto& [arguments, named] : wrong) {
        const ProgramOutcome outcome = runProgram(arguments + QStringList{u"--store"_s, store});
        EXPECT_EQ(outcome.status, 2) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(outcome.err.contains(named)) << outcome.err.toStdString();
        EXPECT_TRUE(outcome.out.isEmpty()) << outcome.out.toStdString();
    }
    EXPECT_FALSE(QFileInfo::exists(store));
}

TEST_F(CommandLineTest, HelpAndVersionGoToStandardOutput) {
    for (const QString& command : {u"import"_s, u"sample"_s, u"check"_s, u"backup"_s, QString()}) {
        QStringList arguments = command.isEmpty() ? QStringList() : QStringList{command};
        const ProgramOutcome help = runProgram(arguments + QStringList{u"--help"_s});
        EXPECT_EQ(help.status, 0);
        EXPECT_TRUE(help.out.contains(u"--store"_s) && help.out.contains(command)) << help.out.toStdString();
        EXPECT_GT(help.out.count(u'\n'), 8) << help.out.toStdString();
        const ProgramOutcome version = runProgram(arguments + QStringList{u"--version"_s});
        EXPECT_EQ(version.status, 0);
        EXPECT_TRUE(version.out.startsWith(u"wirepane "_s)) << version.out.toStdString();
    }
}

TEST_F(CommandLineTest, HelpAndManualPageNameEveryFormat) {
    const QString help = runProgram({u"import"_s, u"--help"_s}).out.simplified();
    QFile page(QStringLiteral(WIREPANE_MANUAL_PAGE));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page.readAll().contains(
        ("takes files of news in: "_L1 + wirepane::namesOfFormats() + u'\n').toUtf8()));
    for (const wirepane::SourceFormat& format : wirepane::sourceFormats())
        EXPECT_TRUE(help.contains(format.name) && help.contains(format.forms)) << help.toStdString();
}

TEST_F(CommandLineTest, TheSameSampleTwiceIsOneSample) {
    const QStringList sample{u"sample"_s,
                             u"--store"_s,
                             store,
                             u"--days"_s,
                             u"2"_s,
                             u"--per-day"_s,
                             u"50"_s,
                             u"--seed"_s,
                             u"7"_s,
                             u"--now"_s,
                             u"2026-03-02T12:00:00"_s};
    const ProgramOutcome first = runProgram(sample);
    ASSERT_EQ(first.status, 0) << first.err.toStdString();
    EXPECT_FALSE(first.out.startsWith(u"0 taken in"_s)) << first.out.toStdString();
    const ProgramOutcome second = runProgram(sample);
    EXPECT_EQ(second.status, 0);
    EXPECT_TRUE(second.out.startsWith(u"0 taken in"_s)) << second.out.toStdString();
    EXPECT_EQ(check().status, 0);
    const QString copy = scratch.path(u"copy.wirepane"_s);
    const ProgramOutcome backup = runProgram({u"backup"_s, u"--store"_s, store, copy});
    EXPECT_EQ(backup.status, 0) << backup.err.toStdString();
    EXPECT_TRUE(backup.out.contains(copy)) << backup.out.toStdString();
    EXPECT_EQ(runProgram({u"check"_s, u"--store"_s, copy}).status, 0);
}

}  // namespace

}  // namespace wirepane
