// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_errors.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "tests/backend/store/listener.h"
#include "tests/backend/store/store_fixture.h"

#include <QCoreApplication>

#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

constexpr std::int64_t day = 86'400;

class RetentionTest : public StoreFixture {
protected:
    // News of the hundred days before `now`, in any order or as it came, with all that belongs to it.
    void fill(int count, bool inOrder = false) {
        std::mt19937 random(11);
        ASSERT_TRUE(writer->begin());
        for (int i = 0; i < count; ++i) {
            NewsItem item =
                newsItem(random() % 2 ? 1 : 16, u"n%1"_s.arg(i),
                         now - (inOrder ? 100 * day - i * (100 * day / count) : random() % (100 * day)),
                         u"Silver %1"_s.arg(i));
            if (random() % 4)
                item.story = u"Metals rose by %1 白銀"_s.arg(i).repeated(random() % 30);
            item.related = {{16, u"6214"_s}, {22, u"00700"_s}};
            ASSERT_TRUE(writer->takeNews(item));
            items.push_back(item);
        }
        ASSERT_TRUE(writer->commit());
    }
    // Steps until it is done, or so many. Result: how many headlines left.
    int trim(const Retention& keep, int steps = 1000) {
        int removed = 0;
        for (; steps > 0; --steps) {
            const Result<TrimStep> step = writer->trim(keep, now);
            EXPECT_TRUE(step);
            if (!step || step.value().isDone)
                break;
            removed += step.value().removed;
        }
        return removed;
    }
    QStringList kept() { return rows("SELECT identity FROM headlines ORDER BY identity"); }
    QStringList checked() { return StoreChecker(store->path()).check().value(); }

    const std::int64_t now = at(12, 0);
    std::vector<NewsItem> items;
};

TEST_F(RetentionTest, WhoBroughtNewsIsForgottenWithIt) {
    ASSERT_TRUE(writer->begin());
    for (const int age : {40, 10}) {
        host_clock::startAt(now - age * day);
        NewsItem item = newsItem(1, u"n%1"_s.arg(age), now - age * day, u"Silver"_s);
        item.link = u"https://a.example/%1"_s.arg(age);
        ASSERT_TRUE(writer->takeFrom(u"net:a.example"_s, item));
    }
    ASSERT_TRUE(writer->commit());
    host_clock::startAt(now);
    trim({.days = 30});
    EXPECT_EQ(rows("SELECT identity FROM item_origins"), QStringList{u"n10"_s});
}

TEST_F(RetentionTest, WhatIsOlderLeavesWholeAndDoesNotComeInAgain) {
    fill(900);
    QStringList expected;
    for (const NewsItem& item : items) {
        if (item.time >= now - 30 * day || item.identity == items.back().identity)
            expected += item.identity;
    }
    expected.sort();
    // Ended halfway, it is sound, and goes on with another writer.
    trim({.days = 30}, 2);
    EXPECT_GT(kept().size(), expected.size());
    EXPECT_EQ(checked(), QStringList{});
    writer = std::make_unique<StoreWriter>(*store);
    trim({.days = 30});
    EXPECT_EQ(kept(), expected);
    EXPECT_EQ(checked(), QStringList{});
    EXPECT_EQ(rows("SELECT headline FROM stories UNION ALL SELECT headline FROM related_symbols UNION ALL "
                   "SELECT rowid FROM news_search WHERE news_search MATCH 'silver' "
                   "EXCEPT SELECT id FROM headlines"),
              QStringList{});
    ASSERT_TRUE(writer->begin());
    for (const NewsItem& item : items) {
        const Result<StoredNews> again = writer->takeNews(item);
        const bool isKept = expected.contains(item.identity);
        EXPECT_EQ(again.value().outcome.take, isKept ? Take::AlreadyThere : Take::Rejected);
        if (!isKept) {
            EXPECT_EQ(again.value().outcome.reason->code, &store_errors::beyondRetention);
        }
    }
    writer->rollback();
    ASSERT_TRUE(writer->takeAnyAge());
    EXPECT_EQ(takeNews(items[0]).outcome.take,
              expected.contains(items[0].identity) ? Take::AlreadyThere : Take::TakenIn);
}

// Nor does what came since that began, whose ids would be given out again.
TEST_F(RetentionTest, WhatAnImportHidesDoesNotLeave) {
    fill(60, true);
    ASSERT_TRUE(writer->beginHidden());
    for (const QString& identity : {u"a"_s, u"b"_s})
        ASSERT_TRUE(writer->takeNews(newsItem(1, identity, now - 200 * day, u"Old"_s)));
    ASSERT_TRUE(writer->commit());
    takeNews(newsItem(1, u"live"_s, now - 150 * day, u"Old"_s));
    EXPECT_EQ(trim({.days = 1, .bytes = 1}), 59);
    EXPECT_EQ(kept(), (QStringList{u"live"_s, u"n59"_s}));
    EXPECT_EQ(checked(), QStringList{});
    ASSERT_TRUE(writer->begin());
    ASSERT_TRUE(writer->showHidden() && writer->commit());
    EXPECT_EQ(trim({.days = 1}), 3);
    EXPECT_EQ(checked(), QStringList{});
}

TEST_F(RetentionTest, TheOldestLeavesOfAStoreThatIsTooLarge) {
    fill(3000, true);
    ASSERT_TRUE(store->execute("PRAGMA wal_checkpoint(TRUNCATE)"));
    const auto inUse = [this] {
        return (rows("PRAGMA page_count").front().toLongLong() -
                rows("PRAGMA freelist_count").front().toLongLong()) *
               4096;
    };
    const std::int64_t before = inUse();
    const Retention keep{.bytes = before * 2 / 3};
    EXPECT_GT(trim(keep), 600);
    EXPECT_LT(inUse(), keep.bytes + before / 16);  // in so small a store much is no news
    EXPECT_GT(inUse(), keep.bytes / 2);
    EXPECT_EQ(checked(), QStringList{});
    // All that stayed is newer than all that left, but for the newest id.
    EXPECT_LE(rows("SELECT id FROM headlines WHERE time < (SELECT horizon FROM retention)").size(), 1);
}

TEST_F(RetentionTest, ViewsHearThatItIsGoneAndOfNothingElse) {
    for (const int hour : {8, 9, 10})
        takeNews(newsItem(1, u"h%1"_s.arg(hour), at(hour, 0), u"T"_s));
    host_clock::startAt(now);
    EmbeddedBackEnd backEnd(std::move(withReader(openStore(store->path())).value()));
    Listener view;
    backEnd.attach(&view);
    std::vector<CHeadlineTable> table;
    EXPECT_EQ(backEnd.BKQNEWS_iGetHeadlineTable(1, table, 0, u"20260302"_s), 3);
    // A day that ended at half past nine.
    backEnd.run([this](StoreWriter& taker) {
        while (!taker.trim({.days = 1}, at(9, 30) + day).value().isDone) {
        }
    });
    while (!backEnd.isDelivered())
        QCoreApplication::processEvents();
    EXPECT_EQ(view.heard, (QStringList{u"gone 1/1 08:00"_s, u"gone 1/2 09:00"_s}));
    table.clear();
    EXPECT_EQ(backEnd.BKQNEWS_iGetHeadlineTable(1, table, 0, u"20260302"_s), 1);
    backEnd.detach(&view);
}

}  // namespace
}  // namespace wirepane
