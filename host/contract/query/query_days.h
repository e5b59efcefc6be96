// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QDate>
#include <QStringView>

#include <cstdint>
#include <limits>
#include <optional>

namespace wirepane {

// A day, a month or a year, or a day counted back from the present one, which goes with the calendar.
struct QueryDay {
    QDate first;  // not valid: the day is counted back
    QDate last;   // as `first`
    int daysBack = 0;

    bool operator==(const QueryDay&) const = default;
};

// The day that a query names: "2026-03-02", "20260302", "2026-03", "2026", "today", "yesterday", "-3d",
// "-2w".
WIREPANE_CONTRACT_EXPORT std::optional<QueryDay> readQueryDay(QStringView text);

// From the first moment of a day to the last one of another; none: open at that end.
struct QueryDays {
    std::optional<QueryDay> from;
    std::optional<QueryDay> to;
};

// Both moments belong to it.
struct Moments {
    std::int64_t first = std::numeric_limits<std::int64_t>::min();  // seconds since 1970
    std::int64_t last = std::numeric_limits<std::int64_t>::max();

    bool areAll() const {
        return first == std::numeric_limits<std::int64_t>::min() &&
               last == std::numeric_limits<std::int64_t>::max();
    }
    bool hold(std::int64_t time) const { return time >= first && time <= last; }
};

// What local days are where the program runs, on that present day.
WIREPANE_CONTRACT_EXPORT Moments momentsOf(const QueryDays& days, QDate today);

}  // namespace wirepane
