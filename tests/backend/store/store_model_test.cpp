// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "tests/backend/store/news_model.h"
#include "tests/backend/store/take_all.h"

#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class StoreModelTest : public StoreFixture {
protected:
    QStringList listing() {
        QStringList lines = rows(
            "SELECT service, time, sequence, version, title, coalesce(text, '-'), "
            "coalesce((SELECT group_concat(code, ' ') || ' ' FROM (SELECT code FROM related_symbols "
            "WHERE related_symbols.headline = headlines.id ORDER BY position)), '') "
            "FROM headlines LEFT JOIN stories ON stories.headline = id");
        lines.sort();
        return lines;
    }
};

QStringList dayOf(EmbeddedBackEnd& backEnd, unsigned char service, QDate date) {
    std::vector<CHeadlineTable> table;
    backEnd.BKQNEWS_iGetHeadlineTable(service, table, 0, date.toString(u"yyyyMMdd"_s));
    QStringList lines;
    for (const CHeadlineTable& entry : table)
        lines += u"%1|%2"_s.arg(entry.time).arg(entry.sequence);
    return lines;
}

TEST_F(StoreModelTest, RandomTransactionsLeaveWhatTheModelHolds) {
    std::mt19937 random(1);
    NewsModel model;
    for (int round = 0; round < 120; ++round) {
        const bool kept = random() % 4 != 0;
        NewsModel changed = model;
        ASSERT_TRUE(writer->begin());
        for (auto left = random() % 30; left > 0; --left) {
            const NewsItem item = randomNews(random);
            const Result<StoredNews> stored = writer->takeNews(item);
            ASSERT_TRUE(stored) << sentence(stored.error()).toStdString();
            ASSERT_EQ(stored.value().outcome.take, changed.take(item)) << round;
        }
        if (kept) {
            ASSERT_TRUE(writer->commit());
            model = changed;
        } else {
            writer->rollback();
        }
    }
    EXPECT_EQ(listing(), model.listing());
    const Result<QStringList> checked = StoreChecker(store->path()).check();
    ASSERT_TRUE(checked) << sentence(checked.error()).toStdString();
    EXPECT_EQ(checked.value(), QStringList{});
}

// Two back ends on one store: each must show what either has taken in.
TEST_F(StoreModelTest, DayTablesStayRightWhoeverTakesIn) {
    EmbeddedBackEnd first(connectionsTo(store->path()));
    EmbeddedBackEnd second(connectionsTo(store->path()));
    std::mt19937 random(2);
    NewsModel model;
    const QDate day(2026, 3, 2);
    for (int round = 0; round < 600; ++round) {
        const NewsItem item = randomNews(random);
        EmbeddedBackEnd& backEnd = random() % 8 == 0 ? second : first;
        const Result<TakeOutcome> outcome = backEnd.takeIn(item);
        ASSERT_TRUE(outcome) << sentence(outcome.error()).toStdString();
        ASSERT_EQ(outcome.value().take, model.take(item));
        first.checkForNews();
        for (const int offset : {-1, 0, 1, 2}) {
            const QDate shown = day.addDays(offset);
            ASSERT_EQ(dayOf(first, item.service, shown), model.day(item.service, shown)) << round;
        }
    }
    second.checkForNews();
    for (const unsigned char service : std::to_array<unsigned char>({1, 16, 52}))
        EXPECT_EQ(dayOf(second, service, day), model.day(service, day));
}

}  // namespace

}  // namespace wirepane
