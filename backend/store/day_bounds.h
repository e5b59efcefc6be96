// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>

#include <cstdint>

namespace wirepane {

// The seconds of a local calendar day: from `begin` to before `end`, since 1970 (UTC).
struct DayBounds {
    std::int64_t begin = 0;
    std::int64_t end = 0;

    bool contains(std::int64_t time) const { return time >= begin && time < end; }
    bool operator==(const DayBounds&) const = default;
};

DayBounds boundsOf(QDate day);

// A date as the number yyyymmdd; 0 for one that is invalid.
std::int32_t dayNumber(QDate day);
// The date of an eight-digit text yyyymmdd; invalid when it is none.
QDate dayOfText(const QString& text);

}  // namespace wirepane
