// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/import_job.h"

#include "host/contract/clock.h"
#include "tests/backend/import/recording_sink.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

QByteArray record(int number, const QByteArray& title = "H", const QByteArray& time = "2004-01-01") {
    return "{\"uri\": \"urn:" + QByteArray::number(number) +
           "\", \"version\": \"1\", \"versioncreated\": \"" + time + "\", \"headline\": \"" + title + "\"}\n";
}

class ImportJobTest : public testing::Test {
protected:
    QString file(const QString& name, const QByteArray& content) {
        const QString path = folder.filePath(name);
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
        return path;
    }

    ImportReport run(const QStringList& files) {
        rejections.clear();
        ImportJob job(files, sink);
        job.onRejection([this](const ImportRejection& one) {
            const QString name = one.file.section(u'/', -1);
            rejections += name + u'|' + (one.rejection.place ? sentence(*one.rejection.place) : QString()) +
                          u'|' + sentence(one.rejection.reason);
        });
        return job.run();
    }

    QTemporaryDir folder;
    RecordingSink sink;
    QStringList rejections;
};

TEST_F(ImportJobTest, TakesFilesInOnceAndCounts) {
    const QStringList files{file(u"a.jsonl"_s, record(1) + "{}\n" + record(2) + record(3, "refused")),
                            file(u"b.csv"_s, "market,code,name\n16,2330,x\n")};
    const ImportReport first = run(files);
    EXPECT_EQ(first.totals.takenIn, 3);
    EXPECT_EQ(first.totals.rejected, 2);
    EXPECT_EQ(first.filesRead, 2);
    EXPECT_EQ(importExitStatus(first), 1);
    EXPECT_EQ(rejections,
              QStringList({u"a.jsonl|line 2|The record has no “uri”."_s, u"a.jsonl|line 4|Not this one."_s}));
    const ImportReport again = run(files.first(1));
    EXPECT_EQ(again.totals.takenIn, 0);
    EXPECT_EQ(again.totals.alreadyThere, 2);
    EXPECT_EQ(sink.stored.news.size(), 2U);
}

TEST_F(ImportJobTest, RejectsFilesThatItCannotRead) {
    const QStringList files{folder.filePath(u"none"_s), folder.path(), file(u"empty"_s, ""),
                            file(u"page.html"_s, "<html></html>")};
    const ImportReport report = run(files);
    EXPECT_EQ(report.filesRejected, 4);
    EXPECT_EQ(importExitStatus(report), 2);
    ASSERT_EQ(rejections.size(), 4);
    EXPECT_EQ(rejections.at(0), u"none||The file does not exist.");
    EXPECT_TRUE(rejections.at(1).endsWith(u"This is not a file."));
    EXPECT_EQ(rejections.at(2), u"empty||The file is empty.");
    EXPECT_EQ(sink.begun, sink.rolledBack);

    const ImportReport withGood = run(files + QStringList{file(u"good"_s, record(1))});
    EXPECT_EQ(withGood.totals.takenIn, 1);
    EXPECT_EQ(importExitStatus(withGood), 1);
    EXPECT_EQ(importExitStatus(run({folder.filePath(u"good"_s)})), 0);
}

TEST_F(ImportJobTest, AFailingStoreKeepsWholeFilesOnly) {
    const QStringList files{file(u"a"_s, record(1) + record(2)), file(u"b"_s, record(3) + record(4)),
                            file(u"c"_s, record(5))};
    for (int failAt = 0; failAt < 5; ++failAt) {
        sink = {};
        sink.takesBeforeFailing = failAt;
        const ImportReport report = run(files);
        EXPECT_EQ(sentence(report.failure.value()), u"The disk is full."_s);
        EXPECT_EQ(importExitStatus(report), 2);
        const std::size_t whole = failAt < 2 ? 0 : failAt < 4 ? 2 : 4;
        EXPECT_EQ(sink.stored.news.size(), whole) << failAt;
        EXPECT_EQ(report.totals.takenIn, qint64(whole));
        EXPECT_EQ(sink.rolledBack, 1);
    }
    sink = {};
    sink.failsToCommit = true;
    const ImportReport report = run(files);
    EXPECT_EQ(sentence(report.failure.value()), u"The disk is gone."_s);
    EXPECT_TRUE(sink.stored.news.empty());
    EXPECT_EQ(sink.begun, 1);
}

TEST_F(ImportJobTest, StopsWithinAFileAndGoesOnLater) {
    QByteArray many;
    for (int i = 10; i < 1000; ++i)
        many += record(i) + "{}\n";
    const QStringList files{file(u"a"_s, record(1)), file(u"b"_s, many), file(u"c"_s, record(2))};
    ImportJob job(files, sink);
    job.onRejection([&job](const ImportRejection&) { job.stop(); });
    const ImportReport stopped = job.run();
    EXPECT_TRUE(stopped.stopped);
    EXPECT_EQ(stopped.totals.takenIn, 1);
    EXPECT_EQ(sink.stored.news.size(), 1U);
    EXPECT_EQ(importExitStatus(stopped), 1);

    const ImportReport later = run(files);
    EXPECT_EQ(later.totals.takenIn, 991);
    EXPECT_EQ(later.totals.alreadyThere, 1);
    EXPECT_EQ(sink.stored.news.size(), 992U);
}

TEST_F(ImportJobTest, ShowsProgressUpToTheEnd) {
    const QByteArray content = record(1).repeated(100);
    const QStringList files{file(u"a"_s, content), file(u"b"_s, content)};
    std::vector<ImportProgress> shown;
    ImportJob job(files, sink);
    job.onProgress([&shown](const ImportProgress& progress) { shown.push_back(progress); });
    QElapsedTimer clock;
    clock.start();
    job.run();
    ASSERT_FALSE(shown.empty());
    EXPECT_LE(shown.size(), 1U + std::size_t(clock.elapsed() / 100));
    EXPECT_EQ(shown.back().bytesDone, 2 * content.size());
    EXPECT_EQ(shown.back().bytesTotal, 2 * content.size());
    EXPECT_EQ(shown.back().items, 200);
}

TEST_F(ImportJobTest, TellsWhetherAnythingIsRecent) {
    constexpr std::int64_t newYear2004 = 1072915200;
    constexpr std::int64_t day = 86400;
    const std::int64_t moment = host_clock::now();
    const QString news = file(u"a"_s, record(1));
    const QString symbols = file(u"b"_s, "market,code,name\n16,2330,x\n");
    const auto nothingRecent = [&](std::int64_t now, const QString& path) {
        host_clock::startAt(now);
        return run({path}).nothingRecent();
    };
    EXPECT_FALSE(nothingRecent(newYear2004 + 254 * day, news));
    EXPECT_TRUE(nothingRecent(newYear2004 + 256 * day, news));
    EXPECT_TRUE(nothingRecent(newYear2004 - 2 * day, news));
    EXPECT_FALSE(nothingRecent(newYear2004 + 256 * day, symbols));
    host_clock::startAt(moment);
}

}  // namespace
}  // namespace wirepane
