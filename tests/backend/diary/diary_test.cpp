// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/diary/diary_check.h"
#include "backend/diary/diary_lines.h"
#include "backend/diary/diary_writer.h"
#include "backend/store/store_file.h"
#include "tests/backend/store/store_fixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>

#include <atomic>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class DiaryTest : public StoreFixture {
protected:
    QString storePath() const { return pathOf(u"news.db"_s); }
    QString diary() const { return diaryFileOf(storePath()); }
    DiaryHead kept() {
        bool failed = false;
        return KeptHead(*store).head(failed);
    }
    void write(int count, const QString& text = u"a headline"_s) {
        DiaryWriter writing(storePath(),
                            {{}, [](const Error& error) { ADD_FAILURE() << sentence(error).toStdString(); }});
        for (int i = 0; i < count; ++i)
            writing.add({{diary_names::kind, u"row"_s}, {u"text"_s, text}});
    }
    void replaceDiary(const QByteArray& bytes) {
        QFile file(diary());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    }
    DiaryReport report() { return checkDiary(diary(), kept()).value(); }
};

}  // namespace

TEST_F(DiaryTest, AnyByteThatIsChangedTakenOutOrPutInIsFound) {
    write(12, u"台積電 \"quoted\" \n line"_s);
    const QByteArray good = bytesOf(diary());
    ASSERT_EQ(report().faults, QStringList());
    ASSERT_EQ(report().head, kept());
    ASSERT_EQ(kept().count, 12);
    // Every byte: of seals, of blanks, of texts, of ends of lines.
    for (qsizetype at = 0; at < good.size(); ++at) {
        for (const int flip : {1, 0x20, 0x80}) {
            QByteArray bad = good;
            bad[at] = static_cast<char>(bad[at] ^ flip);
            replaceDiary(bad);
            ASSERT_FALSE(report().faults.isEmpty()) << "byte " << at << " of " << good.size();
        }
        replaceDiary(QByteArray(good).remove(at, 1));
        ASSERT_FALSE(report().faults.isEmpty()) << "without byte " << at;
        replaceDiary(QByteArray(good).insert(at, ' '));
        ASSERT_FALSE(report().faults.isEmpty()) << "more at byte " << at;
    }
}

TEST_F(DiaryTest, LinesThatAreMovedOrCutAreFoundAndStayTold) {
    write(6);
    const QByteArray good = bytesOf(diary());
    const QList<QByteArray> lines = good.split('\n');
    const auto without = [&](int line) {
        QList<QByteArray> rest = lines;
        rest.removeAt(line);
        return rest.join('\n');
    };
    QList<QByteArray> swapped = lines;
    swapped.swapItemsAt(2, 3);
    QList<QByteArray> twice = lines;
    twice.insert(3, lines[3]);
    for (const QByteArray& bad : {without(0), without(3), without(5), swapped.join('\n'), twice.join('\n'),
                                  QByteArray(), good.first(good.indexOf('\n') + 1)}) {
        replaceDiary(bad);
        EXPECT_FALSE(report().faults.isEmpty());
    }
    // The diary is written on after its tail was cut, further than it went before.
    replaceDiary(without(5));
    write(4);
    EXPECT_EQ(kept().count, 10) << "five, one that tells of the cut, four";
    EXPECT_EQ(report().faults.size(), 1);
    // Nothing is amiss with what a store that was killed has not heard of.
    replaceDiary(good);
    bool failed = false;
    KeptHead heads(*store);
    DiaryHead third = noEntries();
    for (int i = 0; i < 3; ++i)
        third = {i + 1, lines[i].first(64)};
    ASSERT_TRUE(heads.keep(third));
    EXPECT_EQ(report().faults, QStringList());
    EXPECT_EQ(heads.head(failed), third);
}

TEST_F(DiaryTest, ATornEndIsTakenForWhatItIs) {
    write(3);
    const QByteArray good = bytesOf(diary());
    replaceDiary(good + good.first(90));
    EXPECT_TRUE(report().hasTornEnd);
    EXPECT_EQ(report().faults, QStringList());
    // Longer than what is looked at from the end at first.
    replaceDiary(good + QByteArray(300'000, 'x'));
    write(2, QString(200'000, u'y'));
    EXPECT_FALSE(report().hasTornEnd);
    EXPECT_EQ(report().faults, QStringList());
    EXPECT_EQ(kept().count, 5);
}

TEST_F(DiaryTest, SeveralWritersTakeTurns) {
    DiaryWriter first(storePath(),
                      {{}, [](const Error& error) { ADD_FAILURE() << sentence(error).toStdString(); }});
    DiaryWriter second(storePath(), {});
    for (int i = 0; i < 200; ++i) {
        first.add({{diary_names::kind, u"row"_s}, {u"i"_s, i}});
        second.add({{diary_names::kind, u"row"_s}, {u"i"_s, i}});
        if (i % 20 == 0)
            first.flush();
    }
    first.flush();
    second.flush();
    EXPECT_EQ(kept().count, 400);
    EXPECT_EQ(report().faults, QStringList());
}

TEST_F(DiaryTest, WhatCannotBeWrittenIsToldAndWrittenLater) {
    ASSERT_TRUE(QDir().mkpath(diary()));
    std::atomic<int> failures = 0;
    std::atomic<int> keeps = 0;
    {
        DiaryWriter writing(storePath(),
                            {[&](const DiaryHead&) { ++keeps; }, [&](const Error&) { ++failures; }});
        for (int i = 0; i < 3; ++i) {
            writing.add({{diary_names::kind, u"row"_s}, {u"i"_s, i}});
            writing.flush();
        }
        EXPECT_EQ(failures, 1);
        EXPECT_EQ(keeps, 0);
        ASSERT_TRUE(QDir().rmdir(diary()));
        writing.add({{diary_names::kind, u"row"_s}, {u"i"_s, 3}});
    }
    EXPECT_GT(keeps, 0);
    QStringList order;
    ASSERT_TRUE(checkDiary(diary(), kept(), [&](std::int64_t, QByteArrayView json) {
        order.append(QString::number(QJsonDocument::fromJson(json.toByteArray())["i"_L1].toInt()));
    }));
    EXPECT_EQ(order, (QStringList{u"0"_s, u"1"_s, u"2"_s, u"3"_s}));
}

TEST_F(DiaryTest, NoEntryThatWasToldKeptIsLostWhenItIsKilled) {
    std::mt19937 dice(4711);
    std::int64_t told = 0;
    writer.reset();
    store.reset();
    for (int round = 0; round < 20; ++round) {
        int heard[2];
        ASSERT_EQ(pipe(heard), 0);
        const pid_t child = fork();
        if (child == 0) {
            DiaryWriter writing(storePath(), {[&](const DiaryHead& head) {
                                                  (void)!::write(heard[1], &head.count, sizeof head.count);
                                              },
                                              {}});
            for (int i = 0;; ++i) {
                writing.add({{diary_names::kind, u"row"_s}, {u"text"_s, QString(i % 3000, u'z')}});
                usleep(200);
            }
        }
        close(heard[1]);
        usleep(std::uniform_int_distribution<useconds_t>(30'000, 90'000)(dice));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        for (std::int64_t count = 0; read(heard[0], &count, sizeof count) == sizeof count;)
            told = count;
        close(heard[0]);
        const auto opened = openStore(storePath());
        ASSERT_TRUE(opened);
        bool failed = false;
        const DiaryHead head = KeptHead(*opened.value()).head(failed);
        const DiaryReport found = checkDiary(diary(), head).value();
        ASSERT_EQ(found.faults, QStringList()) << "round " << round;
        ASSERT_GE(found.head.count, told);
        ASSERT_GE(head.count, told);
    }
    EXPECT_GT(told, 100);
}

TEST_F(DiaryTest, AHundredThousandEntriesAreCheckedWithinASecond) {
    write(99'990, u"Foxconn raises its outlook for the year on demand for servers, shares rise by 4 %"_s);
    QElapsedTimer time;
    time.start();
    const DiaryReport found = report();
    const qint64 took = time.elapsed();
    RecordProperty("milliseconds", static_cast<int>(took));
    EXPECT_EQ(found.head.count, 99'990);
    EXPECT_EQ(found.faults, QStringList());
    EXPECT_LT(took, 1000);
}

}  // namespace wirepane
