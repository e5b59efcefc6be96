// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/local_days.h"

#include <QDateTime>

#include <limits>

namespace wirepane {

namespace {

constexpr std::int64_t secondsPerDay = 86400;
constexpr std::int64_t farthestUtcDay = 2932896;  // the end of the year 9999

std::int64_t utcDayOf(std::int64_t time) {
    return time / secondsPerDay - (time % secondsPerDay < 0 ? 1 : 0);
}

}  // namespace

LocalDays::UtcDay LocalDays::ask(std::int64_t utcDay) {
    constexpr std::int64_t never = std::numeric_limits<std::int64_t>::max();
    if (utcDay < -farthestUtcDay || utcDay > farthestUtcDay)
        return {never, utcDay, utcDay};
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

void ListedDays::add(std::int64_t time) {
    const std::int64_t day = days.of(time);
    if (day == last)
        return;
    last = day;
    if (listed.insert(day).second)
        timeOfEach.push_back(time);
}

void ListedDays::clear() {
    *this = {};
}

}  // namespace wirepane
