// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/local_days.h"

#include "tests/support/fake_back_end.h"
#include "tests/support/time_zone.h"

#include <QDateTime>

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace wirepane {

namespace {

QDate dayOf(std::int64_t time) {
    return QDateTime::fromSecsSinceEpoch(time).date();
}

TEST(LocalDays, AreThoseOfTheCalendar) {
    LocalDays days;
    std::mt19937_64 random(11);
    std::vector<std::int64_t> times{0, -1, localTime(2026, 3, 2, 0, 0), localTime(2026, 3, 1, 23, 59, 59)};
    for (int i = 0; i < 500; ++i)
        times.push_back(static_cast<std::int64_t>(random() % 4'000'000'000) - 1'000'000'000);
    for (const std::int64_t time : times) {
        for (const std::int64_t other : {time, time + 3'600, time + 40'000, time - 86'400}) {
            ASSERT_EQ(days.of(time) == days.of(other), dayOf(time) == dayOf(other)) << time << ' ' << other;
            ASSERT_EQ(days.dateOf(other), dayOf(other)) << other;
        }
    }
}

TEST(LocalDays, TimesOutsideTheCalendarHaveADayAndNoDate) {
    constexpr std::int64_t secondsPerDay = 86400;
    constexpr std::int64_t lastOf9999 = 253402300799;
    constexpr std::int64_t farthest = std::numeric_limits<std::int64_t>::max();
    LocalDays days;
    EXPECT_EQ(days.of(farthest), days.of(farthest - 1));
    EXPECT_NE(days.of(farthest), days.of(-farthest));
    EXPECT_NE(days.of(farthest), days.of(farthest - secondsPerDay));
    for (const std::int64_t time : {farthest, -farthest, lastOf9999 + 1})
        EXPECT_FALSE(days.dateOf(time).isValid()) << time;
    // No date within the calendar has the number of such a day.
    const std::int64_t beyond = days.of(lastOf9999 + 2 * secondsPerDay);
    EXPECT_FALSE(QDate::fromJulianDay(beyond) < days.dateOf(lastOf9999));
}

TEST(LocalDays, KeepTheirAnswersInAnotherZone) {
    const std::int64_t evening = localTime(2026, 3, 2, 23, 30);
    LocalDays days;
    const QDate before = days.dateOf(evening);
    const TimeZone tokyo("Asia/Tokyo");
    EXPECT_EQ(days.dateOf(evening), before);
    EXPECT_EQ(LocalDays().dateOf(evening), dayOf(evening));
}

}  // namespace

}  // namespace wirepane
