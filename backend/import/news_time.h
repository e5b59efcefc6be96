// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"

#include <QStringView>

#include <cstdint>
#include <optional>

namespace wirepane {

// Times that news may have: the years 1900 to 2199, UTC.
constexpr bool isNewsTime(std::int64_t time) {
    constexpr std::int64_t firstOf2200 = 7258118400;
    return time >= firstNewsTime && time < firstOf2200;
}

// What a text says of a moment.
struct StatedTime {
    std::int64_t wallClock = 0;  // its date and time of day as if they were UTC, in seconds since 1970
    bool hasClock = false;       // it says a time of day
    bool hasZone = false;
    int zoneMinutes = 0;  // of the zone, east of UTC; 0 without one

    // Seconds since 1970; one without a zone is UTC.
    std::int64_t moment() const { return wallClock - std::int64_t{zoneMinutes} * 60; }
};

// What a text of a news format says of a moment, whatever the year; nothing when it is no time. The forms are
// those of newsTime.
std::optional<StatedTime> statedTime(QStringView text);

// The moment that a text of a news format states, in seconds since 1970 (UTC); nothing when it is not a time
// of the years 1900 to 2199. Understood are ISO 8601 ("2019-05-10T16:02:28+02:00", down to "2019-05-10",
// "2019-05" and "2019") and the date form of mail ("Thu, 01 Jan 2004 19:48:21 GMT", day name and seconds
// optional, zone by name or offset). A time without zone is UTC; one with a zone name that is not known is
// not understood.
std::optional<std::int64_t> newsTime(QStringView text);

}  // namespace wirepane
