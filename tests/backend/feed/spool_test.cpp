// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/spool_source.h"
#include "tests/backend/feed/feed_fixture.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace wirepane {

namespace {

const SpoolOptions atOnce{std::chrono::milliseconds(0), 100'000, {}};

class SpoolTest : public FeedFixture, public SourceTaker {
protected:
    SpoolTest() { open(atOnce); }

    void open(const SpoolOptions& options) {
        spool = std::move(SpoolSource::open(folder.filePath(u"spool"_s), options).value());
        spool->setTaker(this);
    }
    void sourceReady(FeedSource&) override {}
    void sourceTrouble(const Error&) override { ++troubles; }
    QString path(const QString& name) const { return folder.filePath(u"spool/"_s + name); }
    void put(const QString& name, const QByteArray& content, int secondsAgo = 0) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        ASSERT_TRUE(file.flush() && file.setFileTime(QDateTime::currentDateTime().addSecs(-secondsAgo),
                                                     QFileDevice::FileModificationTime));
    }
    int takeAll() {
        int batches = 0;
        while (spool->hasBatch() && batches < 1000) {
            const Result<BatchOutcome> taken = takeBatch(*spool->batch(), spool->name(), *writer);
            EXPECT_TRUE(taken);
            if (!taken)
                break;
            spool->acknowledge(taken.value());
            ++batches;
        }
        return batches;
    }
    QStringList filesIn(const QString& subfolder) const {
        return QDir(path(subfolder)).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
    }
    QByteArray content(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<SpoolSource> spool;
    int troubles = 0;
};

TEST_F(SpoolTest, FilesAreTakenOldestFirstAndMovedWithTheReasonsBesideThem) {
    const QByteArray a = record(u"a"_s, u"A"_s) + '\n';
    put(u"later.jsonl"_s, a + record(u"b"_s, u"B"_s) + '\n', 10);
    put(u"earlier.jsonl"_s, a + "{\"uri\": broken\n" + record(u"c"_s, u"C"_s) + '\n', 20);
    put(u"only-bad.jsonl"_s, "{\"uri\":\"x\"}\n", 5);
    put(u"half-known.jsonl"_s, a + record(u"d"_s, u"D"_s) + "\n{\"uri\":\"y\"}\n", 6);
    put(u"just-right.jsonl"_s,
        record(u"e"_s, u"E"_s) + QByteArray(100'000, ' ').sliced(record(u"e"_s, u"E"_s).size()), 1);
    put(u"letter.txt"_s, "Dear all,", 4);
    put(u"empty"_s, {}, 3);
    put(u"huge.jsonl"_s, QByteArray(200'000, ' '), 2);
    EXPECT_EQ(takeAll(), 8);
    EXPECT_EQ(titles(), (QStringList{u"A"_s, u"C"_s, u"B"_s, u"D"_s, u"E"_s}));
    EXPECT_EQ(filesIn(u"done"_s),
              (QStringList{u"earlier.jsonl"_s, u"earlier.jsonl.reason.txt"_s, u"half-known.jsonl"_s,
                           u"half-known.jsonl.reason.txt"_s, u"just-right.jsonl"_s, u"later.jsonl"_s}));
    EXPECT_EQ(filesIn(u"rejected"_s),
              (QStringList{u"empty"_s, u"empty.reason.txt"_s, u"huge.jsonl"_s, u"huge.jsonl.reason.txt"_s,
                           u"letter.txt"_s, u"letter.txt.reason.txt"_s, u"only-bad.jsonl"_s,
                           u"only-bad.jsonl.reason.txt"_s}));
    EXPECT_TRUE(content(u"done/earlier.jsonl.reason.txt"_s).startsWith("line 2: "));
    EXPECT_TRUE(content(u"rejected/huge.jsonl.reason.txt"_s).contains("larger than 100000 bytes"));
    EXPECT_EQ(filesIn({}), QStringList{});
    EXPECT_EQ(troubles, 6);
}

TEST_F(SpoolTest, NamesThatAreThereAlreadyGetANumber) {
    for (int round = 1; round <= 3; ++round) {
        put(u"a.jsonl"_s, record(QString::number(round), u"N"_s) + '\n');
        put(u"b"_s, "?");
        takeAll();
    }
    EXPECT_EQ(filesIn(u"done"_s), (QStringList{u"a-2.jsonl"_s, u"a-3.jsonl"_s, u"a.jsonl"_s}));
    EXPECT_EQ(filesIn(u"rejected"_s), (QStringList{u"b"_s, u"b-2"_s, u"b-2.reason.txt"_s, u"b-3"_s,
                                                   u"b-3.reason.txt"_s, u"b.reason.txt"_s}));
    EXPECT_EQ(titles().size(), 3);
}

TEST_F(SpoolTest, WhatIsBeingWrittenIsNotTaken) {
    for (const QString& name : {u"a.part"_s, u"a.tmp"_s, u"a.filepart"_s, u".a"_s})
        put(name, record(u"x"_s, u"X"_s));
    QDir().mkpath(path(u"folder.jsonl"_s));
    QFile open(path(u"open.jsonl"_s));
    ASSERT_TRUE(open.open(QIODevice::WriteOnly) && open.write(record(u"o"_s, u"Open"_s) + '\n') > 0);
    ASSERT_TRUE(open.flush());
#ifdef Q_OS_LINUX
    EXPECT_EQ(takeAll(), 0);
#endif
    open.close();
    EXPECT_EQ(takeAll(), 1);
    EXPECT_EQ(titles(), QStringList{u"Open"_s});
    EXPECT_TRUE(QFileInfo(path(u"folder.jsonl"_s)).isDir());

    // Where the system does not tell, a file must have been quiet.
    put(u"slow.jsonl"_s, "?");
    this->open({std::chrono::hours(1), 100'000, {}});
    for (const char* look : {"first seen", "seen for a moment"})
        EXPECT_FALSE(spool->hasBatch()) << look;
    this->open({std::chrono::milliseconds(150), 100'000, {}});
    put(u"slow.jsonl"_s, record(u"s"_s, u"Half"_s).left(20));
    EXPECT_FALSE(spool->hasBatch());
    QTest::qWait(100);
    put(u"slow.jsonl"_s, record(u"s"_s, u"Whole"_s) + '\n');
    QTest::qWait(100);
    EXPECT_FALSE(spool->hasBatch());
    EXPECT_TRUE(QTest::qWaitFor([this] { return takeAll() == 1; }));
    EXPECT_EQ(titles(), (QStringList{u"Open"_s, u"Whole"_s}));
}

TEST_F(SpoolTest, LinksAndPipesAreRejectedAndNothingBehindThemIsTouched) {
    const QString outside = folder.filePath(u"outside.jsonl"_s);
    {
        QFile file(outside);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(record(u"x"_s, u"X"_s)) > 0);
    }
    QFile::link(outside, path(u"link.jsonl"_s));
    QFile::link(folder.filePath(u"nowhere"_s), path(u"broken"_s));
    ASSERT_EQ(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    EXPECT_EQ(takeAll(), 3);
    EXPECT_EQ(titles(), QStringList{});
    EXPECT_TRUE(QFile::exists(outside));
    EXPECT_EQ(filesIn({}), QStringList{});
    EXPECT_EQ(content(u"rejected/link.jsonl.reason.txt"_s), "This is a link; only files are taken.\n");
    EXPECT_EQ(content(u"rejected/pipe.reason.txt"_s), "This is not a file.\n");
}

TEST_F(SpoolTest, NothingIsMovedThroughALink) {
    const QString elsewhere = folder.filePath(u"elsewhere"_s);
    ASSERT_TRUE(QDir().mkdir(elsewhere) && QDir(path(u"rejected"_s)).removeRecursively() &&
                QFile::link(elsewhere, path(u"rejected"_s)));
    put(u"bad.json"_s, "nothing");
    takeAll();
    EXPECT_EQ(troubles, 1);
    EXPECT_TRUE(QDir(elsewhere).isEmpty());
    EXPECT_TRUE(QFile::exists(path(u"bad.json"_s)));
    const auto reopened = SpoolSource::open(folder.filePath(u"spool"_s), atOnce);
    ASSERT_FALSE(reopened);
    EXPECT_TRUE(sentence(reopened.error()).endsWith(u": rejected in it is a link."_s));
}

TEST_F(SpoolTest, ALongNameIsCutSoThatItsReasonHasRoom) {
    const QString words = QString(80, u'報');  // 240 bytes
    put(words + u"-1.jsonl"_s, "nothing");
    put(words + u"-2.jsonl"_s, "nothing either");
    EXPECT_EQ(takeAll(), 2);
    QStringList names = filesIn(u"rejected"_s);
    ASSERT_EQ(names.size(), 4);
    EXPECT_TRUE(names.contains(words.left(79) + u".jsonl"_s)) << "no more is cut than must be";
    for (const QString& name : names.filter(QRegularExpression(u"jsonl$"_s))) {
        EXPECT_TRUE(name.startsWith(words.left(70)));
        EXPECT_FALSE(content(u"rejected/"_s + name + u".reason.txt"_s).isEmpty()) << name.toStdString();
    }
    EXPECT_EQ(filesIn(u""_s), QStringList{});
}

TEST_F(SpoolTest, AFileThatCannotBeMovedIsTakenOnceAndLeft) {
    put(u"a.jsonl"_s, record(u"a"_s, u"A"_s) + '\n');
    // Not even the super-user can move a file into a folder that is gone.
    ASSERT_TRUE(QDir(path(u"done"_s)).removeRecursively());
    EXPECT_EQ(takeAll(), 1);
    EXPECT_EQ(takeAll(), 0);
    EXPECT_EQ(titles(), QStringList{u"A"_s});
    EXPECT_EQ(filesIn({}), QStringList{u"a.jsonl"_s});
    EXPECT_EQ(troubles, 1);
    // Another content under this name is another file.
    put(u"a.jsonl"_s, record(u"b"_s, u"Other"_s) + '\n', 5);
    EXPECT_EQ(takeAll(), 1);
    EXPECT_EQ(titles(), (QStringList{u"A"_s, u"Other"_s}));
}

TEST_F(SpoolTest, AStoreThatFailsLeavesTheFileInTheSpool) {
    put(u"a.jsonl"_s, record(u"a"_s, u"A"_s) + '\n' + record(u"b"_s, u"B"_s) + '\n');
    FailingSink sink(*writer);
    for (const auto moment : {FailingSink::Begin, FailingSink::TakeSecond, FailingSink::Commit}) {
        sink.failsAt = moment;
        ASSERT_TRUE(spool->hasBatch());
        EXPECT_FALSE(takeBatch(*spool->batch(), spool->name(), sink));
        EXPECT_EQ(filesIn({}), QStringList{u"a.jsonl"_s});
        EXPECT_EQ(titles(), QStringList{});
    }
    EXPECT_EQ(takeAll(), 1);
    EXPECT_EQ(filesIn(u"done"_s), QStringList{u"a.jsonl"_s});
}

TEST_F(SpoolTest, AFolderThatCannotBeUsedIsSaidToBeSo) {
    put(u"file"_s, "x");
    const auto opened = SpoolSource::open(path(u"file"_s));
    ASSERT_FALSE(opened);
    EXPECT_TRUE(sentence(opened.error()).contains(u"file"_s));
}

}  // namespace

}  // namespace wirepane
