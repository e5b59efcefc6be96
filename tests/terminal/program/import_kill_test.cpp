// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"
#include "tests/terminal/program/program_runner.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QThread>

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

constexpr int filesInAll = 4;
constexpr int itemsPerFile = 1500;  // in files that are large enough to go in by and by
constexpr int kills = 12;
constexpr unsigned seed = 20260302;

class ImportKillTest : public testing::Test {
protected:
    QStringList writeFiles() {
        const QDateTime newest = QDateTime::currentDateTimeUtc();
        QStringList files;
        for (int file = 0; file < filesInAll; ++file) {
            QByteArray lines;
            for (int i = 0; i < itemsPerFile; ++i) {
                const int number = file * itemsPerFile + i;
                const QString when = newest.addSecs(-number).toString(Qt::ISODate);
                lines += ninjsItem(u"u:%1"_s.arg(number), u"Headline %1"_s.arg(number),
                                   u"Story %1 "_s.arg(number).repeated(400), when) +
                         '\n';
            }
            files.append(scratch.write(u"wire-%1.jsonl"_s.arg(file), lines));
        }
        return files;
    }

    // The titles in the store, of every day that the files touch.
    QStringList titles() {
        QStringList found;
        const auto backEnd = EmbeddedBackEnd::open(store);
        if (!backEnd)
            return found;
        std::vector<CHeadlineTable> table;
        const QDate today = QDate::currentDate();
        for (int back = -1; back < 3; ++back)
            backEnd.value()->BKQNEWS_iGetHeadlineTable(1, table, static_cast<int>(TableKind::ByDate),
                                                       today.addDays(-back).toString(u"yyyyMMdd"_s));
        std::vector<CHeadline> headlines;
        backEnd.value()->BKQNEWS_iGetHeadline(1, headlines, table);
        for (const CHeadline& headline : headlines)
            found.append(headline.title);
        return found;
    }

    void checkStore() {
        const ProgramOutcome checked = runProgram({u"check"_s, u"--store"_s, store});
        // Killed before it had made its store, the program leaves an empty file, in which the next one makes
        // it.
        ASSERT_TRUE(checked.status == 0 || checked.err.contains(u"is empty"_s))
            << checked.out.toStdString() << checked.err.toStdString();
    }

    Scratch scratch;
    QString store = scratch.path(u"news.wirepane"_s);
};

TEST_F(ImportKillTest, AKilledImportLeavesWholeFilesAndCanBeRunAgain) {
    const QStringList files = writeFiles();
    const QStringList arguments = QStringList{u"import"_s, u"--store"_s, store} + files;

    // How long an import takes here, so that the kills fall all over it.
    QElapsedTimer whole;
    whole.start();
    ASSERT_EQ(
        runProgram(QStringList{u"import"_s, u"--store"_s, scratch.path(u"other.wirepane"_s)} + files).status,
        0);
    const int wholeMs = static_cast<int>(whole.elapsed());

    std::mt19937 random(seed);
    int killedInside = 0;
    for (int i = 0; killedInside < kills && i < 10 * kills; ++i) {
        QProcess import;
        import.start(programFile(), arguments);
        ASSERT_TRUE(import.waitForStarted());
        const auto moment = random() % static_cast<unsigned>(wholeMs);
        if (!import.waitForFinished(static_cast<int>(moment))) {
            import.kill();
            import.waitForFinished();
            ++killedInside;
        }
        if (!QFileInfo::exists(store))
            continue;
        checkStore();
        const auto held = titles().size();
        EXPECT_EQ(held % itemsPerFile, 0) << "half a file after kill " << i;
        // With all of it there, an import would be over too soon to be killed.
        if (held == filesInAll * itemsPerFile)
            QFile::remove(store);
    }
    EXPECT_EQ(killedInside, kills);

    const ProgramOutcome last = runProgram(arguments);
    ASSERT_EQ(last.status, 0) << last.err.toStdString();
    checkStore();
    const QStringList held = titles();
    EXPECT_EQ(held.size(), filesInAll * itemsPerFile);
    EXPECT_EQ(QSet<QString>(held.begin(), held.end()).size(), filesInAll * itemsPerFile);
}

#ifdef Q_OS_UNIX
TEST_F(ImportKillTest, AnInterruptEndsTheImportBetweenTwoItems) {
    const QStringList files = writeFiles();
    QProcess import;
    import.start(programFile(), QStringList{u"import"_s, u"--store"_s, store} + files);
    ASSERT_TRUE(import.waitForStarted());
    while (!QFile::exists(store) && import.state() == QProcess::Running)
        QThread::msleep(1);
    import.terminate();
    ASSERT_TRUE(import.waitForFinished());
    EXPECT_EQ(import.exitStatus(), QProcess::NormalExit);
    EXPECT_LE(import.exitCode(), 1);
    static const QRegularExpression closing(u"^(\\d+) taken in, "_s);
    const auto match = closing.match(QString::fromUtf8(import.readAllStandardOutput()));
    ASSERT_TRUE(match.hasMatch());
    EXPECT_EQ(match.captured(1).toInt(), titles().size());
    checkStore();
}
#endif

}  // namespace

}  // namespace wirepane
