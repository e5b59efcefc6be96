// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>

namespace wirepane::sample {

// The places of the sample wire share one clock, eight hours before UTC, all year round.
inline constexpr std::int64_t zoneSeconds = 8 * 3600;
inline constexpr std::int64_t daySeconds = 24 * 3600;

// A calendar day as the number of days since 1970-01-01.
struct Day {
    std::int64_t number = 0;

    std::chrono::year_month_day date() const { return std::chrono::sys_days(std::chrono::days(number)); }
    int year() const { return static_cast<int>(date().year()); }
    int month() const { return static_cast<int>(static_cast<unsigned>(date().month())); }
    int dayOfMonth() const { return static_cast<int>(static_cast<unsigned>(date().day())); }
    int weekday() const { return static_cast<int>(((number + 3) % 7 + 7) % 7); }  // 0: Monday
    bool isWeekend() const { return weekday() >= 5; }
    // Days on which the markets are open, counted; a weekend has the number of the Friday before it.
    std::int64_t tradingDay() const {
        const std::int64_t week = (number + 3 - weekday()) / 7;
        return week * 5 + (isWeekend() ? 4 : weekday());
    }
    std::int64_t startUtc() const { return number * daySeconds - zoneSeconds; }
};

struct LocalTime {
    Day day;
    int minute = 0;  // of the day

    static LocalTime fromUtc(std::int64_t seconds) {
        const std::int64_t local = seconds + zoneSeconds;
        const std::int64_t number = (local - (local % daySeconds + daySeconds) % daySeconds) / daySeconds;
        return {{number}, static_cast<int>((local - number * daySeconds) / 60)};
    }
};

// A month, counted from year 0.
struct Month {
    int number = 0;

    static Month of(Day day) { return {day.year() * 12 + day.month() - 1}; }
    int year() const { return number / 12; }
    int month() const { return number % 12 + 1; }
};

// A quarter, counted from year 0.
struct Quarter {
    int number = 0;

    static Quarter of(Day day) { return {day.year() * 4 + (day.month() - 1) / 3}; }
    int index() const { return number % 4; }  // 0: January to March
};

}  // namespace wirepane::sample
