// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/delay_window.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace wirepane {
namespace {

constexpr std::int64_t now = 1'772'418'600;

TEST(DelayWindow, SaysWhatAListOfAllSaysToAnEighth) {
    std::mt19937 random(9);
    for (int round = 0; round < 50; ++round) {
        DelayWindow window;
        std::vector<std::int64_t> all;
        const int count = 1 + int(random() % 3000);
        for (int i = 0; i < count; ++i) {
            const double size = double(random() % 1000) / 1000 * 40;
            const auto delay = static_cast<std::int64_t>(std::pow(2.0, size)) - 1;
            window.add(delay, now - std::int64_t(random() % 3500));
            all.push_back(delay);
        }
        std::ranges::sort(all);
        const DelayWindow::Figures figures = window.figures(now);
        EXPECT_EQ(figures.count, count);
        EXPECT_EQ(figures.longest, all.back());
        const auto isNear = [](std::int64_t said, std::int64_t exact) {
            return said >= exact && double(said) <= double(exact) * 1.125 + 1;
        };
        EXPECT_TRUE(isNear(figures.half, all[std::size_t((count + 1) / 2 - 1)])) << figures.half;
        EXPECT_TRUE(isNear(figures.most, all[std::size_t((count * 99 + 99) / 100 - 1)])) << figures.most;
    }
}

TEST(DelayWindow, ForgetsWhatIsOlderThanAnHour) {
    using Figures = DelayWindow::Figures;
    DelayWindow window;
    EXPECT_EQ(window.figures(now), Figures());
    window.add(500, now, 3);
    window.add(-20, now + 1800);
    EXPECT_EQ(window.figures(now + 1800), (Figures{4, 500, 500, 500}));
    EXPECT_EQ(window.figures(now + 3700), (Figures{1, 0, 0, 0}));
    window.add(7, now + 7200);
    EXPECT_EQ(window.figures(now + 7200), (Figures{1, 7, 7, 7}));
    // A clock that was set back does not see what is to come.
    EXPECT_EQ(window.figures(now + 60), Figures());
}

}  // namespace
}  // namespace wirepane
