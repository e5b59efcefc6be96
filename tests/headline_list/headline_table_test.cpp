// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_table.h"

#include "tests/support/fake_back_end.h"

#include <QDateTime>

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace wirepane {

namespace {

QDate dayOf(std::int64_t time) {
    return QDateTime::fromSecsSinceEpoch(time).date();
}

template <class Wanted>
int firstRow(const std::vector<CHeadlineTable>& rows, int from, Wanted wanted) {
    const auto found = std::find_if(rows.begin() + from, rows.end(), wanted);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

void expectSameAnswers(const HeadlineTable& table, const std::vector<CHeadlineTable>& plain,
                       const HeadlineKey& key) {
    const auto hasNumber = [&](const CHeadlineTable& row) {
        return row.service == key.service && row.sequence == key.sequence;
    };
    ASSERT_EQ(table.size(), static_cast<int>(plain.size()));
    ASSERT_EQ(table.rowOf(key), firstRow(plain, 0, [&](const auto& row) { return keyOf(row) == key; }));
    ASSERT_EQ(table.rowOfSameDay(key), firstRow(plain, 0, [&](const auto& row) {
                  return hasNumber(row) && dayOf(row.time) == dayOf(key.time);
              }));
    ASSERT_EQ(table.rowOfNumber(key), firstRow(plain, 0, hasNumber));
    const int earlier = firstRow(plain, 0, [&](const auto& row) { return row.time < key.time; });
    ASSERT_EQ(table.insertPosition(key.time), earlier < 0 ? table.size() : earlier);
}

}  // namespace

// Few keys, so that many rows share one, and rows coming and going anywhere.
TEST(HeadlineTable, FindsTheFirstRowWhateverComesAndGoes) {
    std::mt19937 random(20260302);
    const std::int64_t noon = localTime(2026, 3, 2, 12, 0);
    const auto anyEntry = [&] {
        return CHeadlineTable{noon + static_cast<std::int64_t>(random() % 8) * 20'000,
                              static_cast<std::int32_t>(random() % 12),
                              static_cast<unsigned char>(random() % 2), 0, 0};
    };
    HeadlineTable table;
    std::vector<CHeadlineTable> plain;
    for (int step = 0; step < 6000; ++step) {
        if (step % 2000 == 1000) {
            plain.assign(static_cast<std::size_t>(step / 10), {});
            std::generate(plain.begin(), plain.end(), anyEntry);
            std::stable_sort(plain.begin(), plain.end(), newerFirst);
            table.assign({plain});
            for (int i = 0; i < 200; ++i) {
                const HeadlineKey key = keyOf(anyEntry());
                ASSERT_EQ(table.rowOf(key),
                          firstRow(plain, 0, [&](const auto& row) { return keyOf(row) == key; }))
                    << "before there is an index";
            }
            const CHeadlineTable oldest = plain.back();
            plain.insert(plain.begin(), oldest);
            table.insert(0, oldest);
            ASSERT_EQ(table.rowOf(keyOf(oldest)), 0) << "put in before there was an index";
        }
        const auto row = static_cast<int>(random() % (plain.size() + 1));
        if (random() % 9 < 5 || row == table.size()) {
            const CHeadlineTable entry = anyEntry();
            plain.insert(plain.begin() + row, entry);
            table.insert(row, entry);
        } else {
            plain.erase(plain.begin() + row);
            table.remove(row);
        }
        expectSameAnswers(table, plain, keyOf(anyEntry()));
        if (HasFatalFailure())
            FAIL() << "step " << step;
    }
}

TEST(HeadlineTable, FindsEveryRowWhileItGrowsAndShrinks) {
    constexpr int count = 30'000;
    const std::int64_t noon = localTime(2026, 3, 2, 12, 0);
    const auto entry = [&](int i) { return CHeadlineTable{noon + i, i % 1000, 1, 0, 0}; };
    HeadlineTable table;
    for (int i = 0; i < count; ++i)
        table.insert(table.insertPosition(noon + i), entry(i));
    for (int i = 0; i < count; ++i) {
        ASSERT_EQ(table.rowOf(keyOf(entry(i))), count - 1 - i);
        ASSERT_EQ(table.rowOf({noon + i, i % 1000, 2}), -1);
    }
    for (int i = count; i-- > 0;) {
        table.remove(0);
        ASSERT_EQ(table.rowOf(keyOf(entry(i))), -1);
        ASSERT_EQ(table.rowOf(keyOf(entry(i / 2))), i == 0 ? -1 : i - 1 - i / 2);
    }
    EXPECT_TRUE(table.empty());
}

}  // namespace wirepane
