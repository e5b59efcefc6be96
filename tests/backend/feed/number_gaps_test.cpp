// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/number_gaps.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <vector>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

TEST(NumberGaps, NamesWhatHasNotCome) {
    struct Case {
        std::vector<std::int64_t> numbers;
        std::int64_t missing;
        QString text;
    };
    const Case cases[] = {
        {{}, 0, QString()},
        {{7}, 0, QString()},
        {{7, 8, 9}, 0, QString()},
        {{7, 9}, 1, u"8"_s},
        {{-1, 3}, 3, u"0-2"_s},
        {{7, 12, 9}, 3, u"8, 10-11"_s},
        {{7, 12, 8, 11, 9, 10}, 0, QString()},
        {{7, 12, 12, 7, 3}, 4, u"8-11"_s},
        {{1, 3, 5, 7, 9, 11}, 5, u"2, 4, 6, 8, 10"_s},
        {{1, 3, 5, 7, 9, 11, 20}, 13, u"2, 4, 6, 8, 10, …"_s},
    };
    for (const Case& one : cases) {
        NumberGaps gaps;
        for (const std::int64_t number : one.numbers)
            gaps.take(number);
        EXPECT_EQ(gaps.missing(), one.missing) << one.text.toStdString();
        EXPECT_EQ(gaps.text(), one.text);
    }
}

TEST(NumberGaps, CountsAsASetDoesWhateverComesInWhicheverOrder) {
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        NumberGaps gaps;
        std::set<std::int64_t> come;
        std::int64_t first = 0;
        for (int i = 0; i < 60; ++i) {
            const std::int64_t number = std::int64_t(random() % 80);
            first = i == 0 ? number : first;
            gaps.take(number);
            if (number >= first)
                come.insert(number);
        }
        EXPECT_EQ(gaps.missing(), *come.rbegin() - first + 1 - std::int64_t(come.size()));
    }
}

}  // namespace
}  // namespace wirepane
