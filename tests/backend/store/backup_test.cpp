// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/backup.h"

#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "tests/backend/store/store_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class BackupTest : public StoreFixture {
protected:
    void fill(const QString& name, int count) {
        ASSERT_TRUE(writer->begin());
        for (int i = 0; i < count; ++i) {
            NewsItem item = newsItem(1, name + QString::number(i), at(9, i % 60), u"T"_s);
            item.story = noise(1900, unsigned(i));
            ASSERT_TRUE(writer->take(item));
        }
        ASSERT_TRUE(writer->commit());
    }
    QString file = pathOf(u"backup.db"_s);
};

TEST_F(BackupTest, TheCopyIsOfOneMomentWhoeverWritesMeanwhile) {
    constexpr int before = 4000;
    fill(u"a"_s, before);
    const auto reading = Database::openToRead(store->path(), StoreOptions().busyTimeout);
    ASSERT_TRUE(reading);
    int portions = 0;
    const Done done = backUp(*reading.value(), file, [&](std::int64_t copied, std::int64_t total) {
        ++portions;
        EXPECT_LE(copied, total);
        EXPECT_FALSE(QFile::exists(file)) << "not before it is whole";
        fill(u"b%1-"_s.arg(portions), 10);
    });
    ASSERT_TRUE(done) << sentence(done.error()).toStdString();
    EXPECT_GT(portions, 2);
    const auto copy = Database::openToRead(file, StoreOptions().busyTimeout);
    ASSERT_TRUE(copy);
    EXPECT_EQ(rowsOf(*copy.value(), "SELECT count(*) FROM headlines"), QStringList{QString::number(before)});
    EXPECT_EQ(StoreChecker(file).check().value(), QStringList{});
    EXPECT_EQ(rows("SELECT count(*) FROM headlines"), QStringList{QString::number(before + portions * 10)});
}

TEST_F(BackupTest, WhatStandsThereStaysAndWhatFailsLeavesNothing) {
    fill(u"a"_s, 3);
    const auto backUpTo = [this](const QString& target) {
        const Done done = backUp(*store, target);
        return done ? QString() : sentence(done.error());
    };
    QFile other(file);
    ASSERT_TRUE(other.open(QIODevice::WriteOnly) && other.write("mine") == 4);
    other.close();
    EXPECT_TRUE(backUpTo(file).contains(u"is there already"_s));
    EXPECT_EQ(bytesOf(file), "mine");
    EXPECT_TRUE(backUpTo(pathOf(u"absent/backup.db"_s)).contains(u"absent"_s));

    // What a kill has left of another backup is no obstacle.
    const QString second = pathOf(u"second.db"_s);
    ASSERT_TRUE(other.copy(second + u".part"_s));
    EXPECT_EQ(backUpTo(second), QString());
    EXPECT_FALSE(QFile::exists(second + u".part"_s));
    EXPECT_EQ(QFile::permissions(second) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_EQ(StoreChecker(second).check().value(), QStringList{});
}

}  // namespace

}  // namespace wirepane
