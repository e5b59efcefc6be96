// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/local_days.h"

#include <QDateTime>

#include <limits>

namespace wirepane {

namespace {

constexpr std::int64_t secondsPerDay = 86400;
constexpr std::int64_t farthestUtcDay = 2932896;  // the end of the year 9999
constexpr std::int64_t julianDayOf1970 = 2440588;

std::int64_t utcDayOf(std::int64_t time) {
    return time / secondsPerDay - (time % secondsPerDay < 0 ? 1 : 0);
}

bool inCalendar(std::int64_t utcDay) {
    return utcDay >= -farthestUtcDay && utcDay <= farthestUtcDay;
}

}  // namespace

LocalDays::UtcDay LocalDays::ask(std::int64_t utcDay) {
    constexpr std::int64_t never = std::numeric_limits<std::int64_t>::max();
    if (!inCalendar(utcDay))
        return {never, utcDay + julianDayOf1970, utcDay + julianDayOf1970};
    const std::int64_t begin = utcDay * secondsPerDay;
    const QDate first = QDateTime::fromSecsSinceEpoch(begin).date();
    const QDate second = QDateTime::fromSecsSinceEpoch(begin + secondsPerDay - 1).date();
    return {first == second ? never : second.startOfDay().toSecsSinceEpoch(), first.toJulianDay(),
            second.toJulianDay()};
}

std::int64_t LocalDays::of(std::int64_t time) {
    const std::int64_t utcDay = utcDayOf(time);
    if (!hasLast || utcDay != lastUtcDay) {
        auto it = known.find(utcDay);
        if (it == known.end())
            it = known.emplace(utcDay, ask(utcDay)).first;
        last = it->second;
        lastUtcDay = utcDay;
        hasLast = true;
    }
    return time < last.midnight ? last.before : last.after;
}

QDate LocalDays::dateOf(std::int64_t time) {
    return inCalendar(utcDayOf(time)) ? QDate::fromJulianDay(of(time)) : QDate();
}

}  // namespace wirepane
