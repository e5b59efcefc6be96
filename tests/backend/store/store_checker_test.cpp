// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_checker.h"

#include "backend/store/store_guard.h"
#include "tests/backend/store/store_fixture.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <chrono>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class StoreCheckerTest : public StoreFixture {
protected:
    StoreCheckerTest() {
        for (int i = 1; i <= 5; ++i) {
            NewsItem item = newsItem(1, u"n%1"_s.arg(i), at(9, i), u"Silver and gold %1"_s.arg(i));
            item.story = u"Metals@@@@rose by %1 Zürich 白銀"_s.arg(i);
            item.related = {{16, u"6214"_s}, {22, u"00700"_s}};
            item.category = u"Metals"_s;
            takeNews(item);
        }
    }
    QStringList check() {
        const Result<QStringList> checked = StoreChecker(store->path()).check();
        EXPECT_TRUE(checked) << sentence(checked.error()).toStdString();
        return checked ? checked.value() : QStringList{};
    }
};

TEST_F(StoreCheckerTest, EachRuleThatIsBrokenIsNamedWithItsOffenders) {
    EXPECT_EQ(check(), QStringList{});
    struct Case {
        const char* breaks;
        QString expected;
    };
    const Case cases[] = {
        {"UPDATE all_headlines SET title = ' ' WHERE id = 2",
         u"These headlines have no title, or one that is too long: 1/n2."_s},
        {"UPDATE all_headlines SET time = 'noon' WHERE id = 1",
         u"The time of these headlines does not lie within the years 1900 to 9999: 1/n1."_s},
        {"UPDATE numbering SET last = 4",
         u"The numbering of these services and days has fallen behind their headlines: 1/20260302."_s},
        {"UPDATE related_symbols SET time = time + 1 WHERE headline = 3 AND position = 1",
         u"The related symbols of these headlines stand under another time or number: 1/n3."_s},
        {"DELETE FROM related_symbols WHERE position = 0 AND headline = 4",
         u"The related symbols of these headlines have gaps or no proper code: 1/n4."_s},
        {"UPDATE stories SET text = x'00' WHERE headline = 5",
         u"The stories of these headlines are no text, or too long: 1/n5."_s},
        {"UPDATE categories SET name = 'a b' WHERE id = 7",
         u"The names of these categories are empty, too long, or hold blanks or commas: 0/7."_s},
        {"DELETE FROM services WHERE id = 122",
         u"These rows refer to rows that are not there: "
         u"service_categories  (to services), service_categories  (to services), "
         u"service_categories  (to services) and more."_s},
        {"UPDATE stories SET text = text || ' today' WHERE headline = 2",
         u"The search index does not hold the text of: 1/n2."_s},
        {"UPDATE stories SET text = replace(text, 'Metals@@@@rose', 'rose@@@@Metals')",
         u"The search index does not hold the text of: 1/n1, 1/n2, 1/n3 and more."_s},
        {"INSERT INTO news_search(rowid, title, story) VALUES(99, 'ghost', 'story')",
         u"The search index does not hold the text of: entry 99."_s},
        {"CREATE TRIGGER thief AFTER INSERT ON all_headlines BEGIN DELETE FROM stories; END",
         u"These triggers are none of the store's; they never run: thief."_s},
        {"INSERT INTO news_search(news_search) VALUES('delete-all')",
         u"The search index does not hold the text of: 1/n1, 1/n2, 1/n3 and more."_s},
    };
    for (const Case& one : cases) {
        const QString copy = pathOf(u"copy.db"_s);
        ASSERT_TRUE(store->execute("PRAGMA wal_checkpoint(TRUNCATE)"));
        ASSERT_TRUE(QFile::copy(store->path(), copy));
        {
            auto opened = Database::open(copy, Database::Mode::Write, std::chrono::milliseconds(20));
            ASSERT_TRUE(opened);
            ASSERT_TRUE(opened.value()->execute(one.breaks))
                << sentence(opened.value()->failure()).toStdString();
        }
        const Result<QStringList> checked = StoreChecker(copy).check();
        ASSERT_TRUE(checked) << one.breaks << ": " << sentence(checked.error()).toStdString();
        EXPECT_TRUE(checked.value().contains(one.expected))
            << one.breaks << ": " << checked.value().join(u" / "_s).toStdString();
        QFile::remove(copy);
    }
}

TEST_F(StoreCheckerTest, TheGuardTellsOnceOfWhatComesToBeWrong) {
    int told = 0;
    const GuardPace quick{std::chrono::milliseconds(1), std::chrono::milliseconds(1),
                          std::chrono::milliseconds(5)};
    StoreGuard guard(
        store->path(), [&] { ++told; }, quick);
    QTest::qWait(60);
    EXPECT_EQ(told, 0);
    ASSERT_TRUE(store->execute("DELETE FROM related_symbols WHERE position = 0 AND headline = 4"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return told > 0; }));
    QTest::qWait(30);
    EXPECT_EQ(told, 1);
}

TEST_F(StoreCheckerTest, ItReadsAStoreThatIsBeingWrittenAndLeavesItAlone) {
    ASSERT_TRUE(writer->begin());
    ASSERT_TRUE(writer->takeNews(newsItem(1, u"pending"_s, at(10, 0), u"Pending"_s)));
    EXPECT_EQ(check(), QStringList{});
    ASSERT_TRUE(writer->commit());
    ASSERT_TRUE(store->execute("PRAGMA wal_checkpoint(TRUNCATE)"));
    const QByteArray before = bytesOf(store->path());
    EXPECT_EQ(check(), QStringList{});
    EXPECT_EQ(bytesOf(store->path()), before);
}

TEST_F(StoreCheckerTest, WhatIsNoStoreIsAnError) {
    EXPECT_FALSE(StoreChecker(pathOf(u"absent.db"_s)).check());
    EXPECT_FALSE(QFile::exists(pathOf(u"absent.db"_s)));
    const QString text = pathOf(u"text.db"_s);
    QFile file(text);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("No store, but a text of some length.\n") > 0);
    file.close();
    EXPECT_FALSE(StoreChecker(text).check());
}

TEST_F(StoreCheckerTest, AnEmptyFileIsNoSoundStore) {
    QFile empty(pathOf(u"empty.db"_s));
    ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
    empty.close();
    const auto expectEmpty = [&] {
        const Result<QStringList> checked = StoreChecker(empty.fileName()).check();
        ASSERT_FALSE(checked);
        EXPECT_TRUE(sentence(checked.error()).contains(u"is empty"_s))
            << sentence(checked.error()).toStdString();
    };
    expectEmpty();
    // Killed between the first page and the tables.
    const auto begun = Database::open(empty.fileName(), Database::Mode::Create, std::chrono::milliseconds(0));
    ASSERT_TRUE(begun && begun.value()->execute("PRAGMA journal_mode = WAL"));
    EXPECT_GT(QFileInfo(empty.fileName()).size(), 0);
    expectEmpty();
}

}  // namespace

}  // namespace wirepane
