// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What commands say and return where their output or their store cannot be used.
#include "backend/database/database.h"
#include "tests/terminal/program/program_runner.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class CommandFaultsTest : public testing::Test {
protected:
    CommandFaultsTest() {
        wire = scratch.write(u"wire.json"_s,
                             ninjsItem(u"u:1"_s, u"Copper"_s, u"Up."_s, u"2026-03-02T01:00:00Z"_s));
        EXPECT_EQ(runProgram({u"import"_s, u"--store"_s, store, wire}).status, 0);
    }

    // Fills the first page of a table of the store with what is none.
    void spoil(const QByteArray& table) {
        qint64 at = -1;
        std::int64_t pageSize = 0;
        {
            const auto database = Database::open(store, Database::Mode::Write, std::chrono::seconds(1));
            std::int64_t page = 0;
            ASSERT_TRUE(database.value()->readNumber("PRAGMA page_size", pageSize));
            ASSERT_TRUE(database.value()->readNumber(
                ("SELECT rootpage FROM sqlite_schema WHERE name = '" + table + "'").constData(), page));
            at = (page - 1) * pageSize;
        }
        QFile file(store);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(at));
        ASSERT_EQ(file.write(QByteArray(pageSize, '\x5a')), pageSize);
    }

    Scratch scratch;
    QString store = scratch.path(u"news.wirepane"_s);
    QString wire;
};

TEST_F(CommandFaultsTest, OutputThatDoesNotGetThereIsAFailure) {
    const QString full = u"/dev/full"_s;
    if (!QFileInfo::exists(full))
        GTEST_SKIP() << "this system has no full device";
    const QString news = scratch.path(u"news.txt"_s);
    const QList<QStringList> commands{
        {u"--help"_s},
        {u"--version"_s},
        {u"import"_s, u"--store"_s, store, wire},
        {u"feed"_s, u"--store"_s, store},
        {u"sample"_s, u"--store"_s, scratch.path(u"sample"_s), u"--days"_s, u"1"_s, u"--per-day"_s, u"1"_s},
        {u"search"_s, u"--store"_s, store, u"copper"_s},
        {u"export"_s, u"--store"_s, store, u"--day"_s, u"20260302"_s, news},
        {u"check"_s, u"--store"_s, store},
        {u"replay"_s, u"--help"_s},
    };
    for (const QStringList& command : commands) {
        const ProgramOutcome outcome = runProgram(command, full);
        EXPECT_EQ(outcome.status, 2) << command.join(u' ').toStdString();
        EXPECT_TRUE(outcome.err.contains(u"Standard output could not be written"_s))
            << command.join(u' ').toStdString() << ": " << outcome.err.toStdString();
        EXPECT_NE(runProgram(command).status, 2) << command.join(u' ').toStdString();
    }
    EXPECT_EQ(runProgram({u"export"_s, u"--store"_s, store, u"--day"_s, u"20260302"_s, full}).status, 2);
}

TEST_F(CommandFaultsTest, AStoreIsAFileWithNewsInIt) {
    const auto everyCommand = [this](const QString& named) {
        return QList<QStringList>{
            {u"search"_s, u"--store"_s, named, u"copper"_s},
            {u"export"_s, u"--store"_s, named, scratch.path(u"none.txt"_s)},
            {u"check"_s, u"--store"_s, named},
        };
    };
    QList<QStringList> refused = everyCommand(u":memory:"_s) + everyCommand(scratch.write(u"empty"_s, {})) +
                                 everyCommand(scratch.write(u"one"_s, "x"));
    refused += {u"import"_s, u"--store"_s, u":memory:"_s, wire};
    refused += {u"import"_s, u"--store"_s, scratch.path(u"one"_s), wire};
    for (const QStringList& command : refused) {
        const ProgramOutcome outcome = runProgram(command);
        EXPECT_EQ(outcome.status, 2) << command.join(u' ').toStdString();
        EXPECT_TRUE(outcome.out.isEmpty()) << outcome.out.toStdString();
        EXPECT_FALSE(outcome.err.isEmpty());
    }
    EXPECT_FALSE(QFileInfo::exists(u":memory:"_s));
    EXPECT_EQ(QFileInfo(scratch.path(u"empty"_s)).size(), 0);
    EXPECT_EQ(QFileInfo(scratch.path(u"one"_s)).size(), 1);
}

TEST_F(CommandFaultsTest, DamageThatIsReadEndsTheCommand) {
    QFile file(store);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray good = file.readAll();
    file.close();
    const QString news = scratch.path(u"news.txt"_s);
    const QString symbols = scratch.write(u"symbols.csv"_s, "market,code,name,category\n16,2330,Maker,1\n");
    const QStringList search{u"search"_s, u"--store"_s, store, u"copper"_s};
    const QStringList exports{u"export"_s, u"--store"_s, store, u"--day"_s, u"20260302"_s, news};
    const QList<std::pair<QByteArray, QStringList>> cases{
        {"all_headlines", search},
        {"services", search},
        {"news_search_data", search},
        {"all_headlines", exports},
        {"services", exports},
        {"stories", exports},
        {"related_symbols", exports},
        {"all_headlines", {u"import"_s, u"--store"_s, store, wire}},
        {"symbols", {u"import"_s, u"--store"_s, store, symbols}},
    };
    for (const auto& [table, command] : cases) {
        scratch.write(u"news.wirepane"_s, good);
        scratch.write(u"news.txt"_s, "as before");
        spoil(table);
        const ProgramOutcome outcome = runProgram(command);
        const std::string what = (QString::fromLatin1(table) + u": "_s + command.join(u' ')).toStdString();
        EXPECT_EQ(outcome.status, 2) << what << outcome.out.toStdString() << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.contains(u"is damaged"_s)) << what << outcome.err.toStdString();
        QFile written(news);
        ASSERT_TRUE(written.open(QIODevice::ReadOnly));
        EXPECT_EQ(written.readAll(), "as before") << what;
    }
}

// The store is for its owner alone; what is put out is for whom the user lets have his files.
TEST_F(CommandFaultsTest, WhatIsPutOutFollowsTheUsersMask) {
    for (const QString& name : {u"news.txt"_s, u"news.pdf"_s}) {
        QProcess shell;
        shell.start(u"sh"_s, {u"-c"_s, u"umask 027; \"$@\""_s, u"sh"_s, programFile(), u"export"_s,
                              u"--store"_s, store, u"--day"_s, u"20260302"_s, scratch.path(name)});
        ASSERT_TRUE(shell.waitForFinished(60000));
        ASSERT_EQ(shell.exitCode(), 0) << shell.readAllStandardError().toStdString();
        const auto ofGroupAndOthers =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        EXPECT_EQ(QFile::permissions(scratch.path(name)) & ofGroupAndOthers, QFile::ReadGroup)
            << name.toStdString();
    }
}

}  // namespace

}  // namespace wirepane
