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

// The moment that a text of a news format states, in seconds since 1970 (UTC); nothing when it is not a time
// of the years 1900 to 2199. Understood are ISO 8601 ("2019-05-10T16:02:28+02:00", down to "2019-05-10",
// "2019-05" and "2019") and the date form of mail ("Thu, 01 Jan 2004 19:48:21 GMT", day name and seconds
// optional, zone by name or offset). A time without zone is UTC; one with a zone name that is not known is
// not understood.
std::optional<std::int64_t> newsTime(QStringView text);

}  // namespace wirepane
