// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/sort_order.h"

#include "headline_list/headline_table.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace wirepane {

namespace {

CHeadlineTable entry(std::int64_t time, std::int32_t sequence, unsigned char service = 1,
                     std::int64_t second = 0, std::int64_t last = 0) {
    return {time, sequence, service, second, last};
}

template <class Entries>
std::vector<HeadlineKey> keysOf(const Entries& entries) {
    std::vector<HeadlineKey> keys;
    for (const CHeadlineTable& e : entries)
        keys.push_back(keyOf(e));
    return keys;
}

}  // namespace

TEST(SortOrder, IsDescendingFieldByField) {
    const CHeadlineTable reference = entry(100, 5, 1, 7, 9);
    struct Case {
        const char* what;
        CHeadlineTable other;
        bool referenceFirst;
    };
    const Case cases[] = {
        {"earlier time", entry(99, 900, 1, 900, 900), true},
        {"later time", entry(101, 0), false},
        {"negative time", entry(-1, 900), true},
        {"lower sequence", entry(100, 4, 1, 99, 99), true},
        {"negative sequence", entry(100, -6, 1, 99, 99), true},
        {"higher sequence", entry(100, 6), false},
        {"lower second value", entry(100, 5, 1, 6, 99), true},
        {"lower last value", entry(100, 5, 1, 7, 8), true},
        {"equal", entry(100, 5, 200, 7, 9), false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(newerFirst(reference, c.other), c.referenceFirst) << c.what;
}

// Whatever the runs are like, the result is what a stable sort of the concatenation gives.
TEST(SortOrder, MergingEqualsAStableSort) {
    std::mt19937 random(20260302);
    for (int round = 0; round < 300; ++round) {
        TableRuns runs;
        const int runCount = static_cast<int>(random() % 9);
        std::vector<CHeadlineTable> expected;
        for (int number = 0; number < runCount; ++number) {
            std::vector<CHeadlineTable>& run = runs.emplace_back();
            const int length = static_cast<int>(random() % 40);
            for (int i = 0; i < length; ++i)
                run.push_back(entry(random() % 20, static_cast<std::int32_t>(random() % 4),
                                    static_cast<unsigned char>(number)));
            if (random() % 8 != 0)
                std::stable_sort(run.begin(), run.end(), newerFirst);
            expected.insert(expected.end(), run.begin(), run.end());
        }
        std::stable_sort(expected.begin(), expected.end(), newerFirst);
        std::vector<CHeadlineTable> sorted;
        sortedNewestFirst(runs).forEach(
            [&](HeadlineRows::Ticket, const CHeadlineTable& e) { sorted.push_back(e); });
        ASSERT_EQ(keysOf(sorted), keysOf(expected)) << "round " << round;
    }
}

TEST(HeadlineTable, CutsRowsAtTheEnd) {
    HeadlineTable table;
    table.assign({{entry(3, 0), entry(2, 0), entry(1, 0)}});
    struct Case {
        int from, count;
        std::vector<std::int64_t> times;
    };
    const Case cases[] = {{0, 2, {3, 2}}, {1, 9, {2, 1}}, {3, 1, {}},           {9, 5, {}},
                          {0, 0, {}},     {0, -1, {}},    {2, 2147483647, {1}}, {-4, 1, {3}}};
    for (const Case& c : cases) {
        std::vector<std::int64_t> times;
        for (const CHeadlineTable& e : table.rows(c.from, c.count))
            times.push_back(e.time);
        EXPECT_EQ(times, c.times) << c.from << " +" << c.count;
    }
}

}  // namespace wirepane
