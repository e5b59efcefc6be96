// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/day_index.h"

#include "backend/database/read_transaction.h"
#include "backend/store/day_entries.h"
#include "tests/backend/store/store_fixture.h"
#include "tests/support/time_zone.h"

#include <algorithm>
#include <random>
#include <set>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QDate monday(2026, 3, 2);

class DayIndexTest : public StoreFixture {
protected:
    void fill(QDate from, int dayCount, int perDay) {
        ASSERT_TRUE(writer->begin());
        for (int day = 0; day < dayCount; ++day) {
            for (int i = 0; i < perDay; ++i) {
                const std::int64_t time = boundsOf(from.addDays(day)).begin + i * 100;
                ASSERT_TRUE(writer->takeNews(newsItem(1, u"%1/%2"_s.arg(day).arg(i), time, u"T"_s)));
            }
        }
        ASSERT_TRUE(writer->commit());
    }
};

// The day fills from its end, in between and at its begin, empties and fills again.
TEST(DayEntriesTest, AreASetInOrder) {
    std::mt19937 random(5);
    std::set<DayEntry> plain;
    for (int i = 0; i < 3000; ++i)
        plain.insert({int(random() % 80'000), i});
    DayEntries entries(std::vector<DayEntry>(plain.begin(), plain.end()));
    for (const unsigned growth : {9U, 1U, 8U}) {
        for (int step = 0; step < 8000; ++step) {
            DayEntry entry{int(random() % 80'000), int(random() % 3000)};
            if (step % 3 == 0 && !plain.empty())
                entry = *plain.lower_bound(std::min(entry, *plain.rbegin()));
            else if (step % 3 == 1)
                entry = {80'000 + step, int(growth)};
            const bool comes = random() % 10 < growth;
            const bool expected = comes ? plain.insert(entry).second : plain.erase(entry) > 0;
            ASSERT_EQ(comes ? entries.add(entry) : entries.remove(entry), expected) << step;
        }
        std::vector<DayEntry> all;
        entries.forEachNewestFirst([&](const DayEntry& entry) { all.push_back(entry); });
        ASSERT_EQ(entries.size(), plain.size());
        ASSERT_TRUE(std::equal(all.begin(), all.end(), plain.rbegin(), plain.rend())) << growth;
    }
    while (!plain.empty())
        ASSERT_TRUE(entries.remove(plain.extract(plain.begin()).value()));
    EXPECT_FALSE(entries.remove({}));
    EXPECT_TRUE(entries.add({}));
}

TEST_F(DayIndexTest, TooManyEntriesDropTheDaysAskedForLongestAgo) {
    fill(monday, 4, 10);
    DayIndex index(*store, 25);
    std::vector<CHeadlineTable> table;
    EXPECT_EQ(index.append(table, 1, monday), 10);
    EXPECT_EQ(index.append(table, 1, monday.addDays(1)), 10);
    EXPECT_EQ(index.append(table, 1, monday), 10);
    EXPECT_EQ(index.append(table, 1, monday.addDays(2)), 10);
    EXPECT_EQ(index.entryCount(), 20u);
    EXPECT_EQ(table.size(), 40u);
    // The first day is still in memory, the second one is not: only the second shows what the store has now.
    takeNews(newsItem(1, u"new"_s, boundsOf(monday).begin, u"T"_s));
    takeNews(newsItem(1, u"new too"_s, boundsOf(monday.addDays(1)).begin, u"T"_s));
    EXPECT_EQ(index.append(table, 1, monday), 10);
    EXPECT_EQ(index.append(table, 1, monday.addDays(1)), 11);
    // A day of more entries than are kept is answered all the same.
    DayIndex tiny(*store, 3);
    EXPECT_EQ(tiny.append(table, 1, monday), 11);
    EXPECT_EQ(tiny.append(table, 1, QDate()), 0);
}

TEST_F(DayIndexTest, WhatAnImportHidesIsLeftOutWhateverTheMomentThatIsRead) {
    fill(monday, 1, 10);
    const auto sizeOfDay = [this] {
        std::vector<CHeadlineTable> table;
        return DayIndex(*store).append(table, 1, monday);
    };
    for (const auto& [blocks, shown] : {std::pair("INSERT INTO import_blocks VALUES(3, 5, 1)", 7),
                                        std::pair("UPDATE import_blocks SET hidden = 0", 10)}) {
        ASSERT_TRUE(store->execute(blocks));
        EXPECT_EQ(sizeOfDay(), shown) << blocks;
        const ReadTransaction moment(*store);
        EXPECT_EQ(sizeOfDay(), shown) << blocks;
    }
}

TEST_F(DayIndexTest, ADayIsTheLocalDayAlsoAfterAMoveToAnotherZone) {
    fill(monday, 1, 864);  // one every hundred seconds
    DayIndex index(*store);
    std::vector<CHeadlineTable> table;
    EXPECT_EQ(index.append(table, 1, monday), 864);
    EXPECT_EQ(table.front().time, at(23, 58, 20));
    EXPECT_EQ(keyOf(table.back()), (HeadlineKey{at(0, 0), 1, 1}));
    const std::int64_t lastOfUtcDay = at(7, 58, 20);
    const TimeZone utc("UTC");
    table.clear();
    EXPECT_EQ(index.append(table, 1, monday), 576);
    EXPECT_EQ(index.append(table, 1, monday.addDays(-1)), 288);
    EXPECT_EQ(table[576].time, lastOfUtcDay);
    // News of an instant that has a number already gets another one, whatever the day is called now.
    const StoredNews stored = takeNews(newsItem(1, u"late"_s, lastOfUtcDay, u"T"_s));
    EXPECT_EQ(stored.outcome.take, Take::TakenIn);
    EXPECT_EQ(rows("SELECT count(DISTINCT sequence) FROM headlines WHERE time = "
                   "(SELECT time FROM headlines WHERE identity = 'late')"),
              QStringList{u"2"_s});
}

TEST_F(DayIndexTest, ADayWithAChangeOfTheClockHasItsOwnLength) {
    const TimeZone zone("America/New_York");
    const QDate spring(2026, 3, 8);
    EXPECT_EQ(boundsOf(spring).end - boundsOf(spring).begin, 23 * 3600);
    fill(spring, 2, 1);
    DayIndex index(*store);
    std::vector<CHeadlineTable> table;
    EXPECT_EQ(index.append(table, 1, spring), 1);
    EXPECT_EQ(index.append(table, 1, spring.addDays(1)), 1);
}

}  // namespace

}  // namespace wirepane
