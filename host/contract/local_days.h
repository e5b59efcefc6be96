// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QDate>

#include <cstdint>
#include <unordered_map>

namespace wirepane {

// Tells which local calendar day a time falls on, quickly: each UTC day is asked of the calendar once. An
// answer once given stays, also when the machine's time zone changes: an index may be built on it. One
// thread.
class WIREPANE_CONTRACT_EXPORT LocalDays {
public:
    // The Julian day number of the local day that a time (seconds since 1970) falls on. Times outside any
    // calendar are taken by their UTC day.
    std::int64_t of(std::int64_t time);
    // The date of that day; invalid outside any calendar.
    QDate dateOf(std::int64_t time);

private:
    // A UTC day has at most one local midnight in it.
    struct UtcDay {
        std::int64_t midnight;
        std::int64_t before;
        std::int64_t after;
    };
    static UtcDay ask(std::int64_t utcDay);

    std::unordered_map<std::int64_t, UtcDay> known;
    std::int64_t lastUtcDay = 0;
    UtcDay last = {0, 0, 0};
    bool hasLast = false;
};

}  // namespace wirepane
