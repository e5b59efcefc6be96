// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"

#include <cstdint>
#include <map>
#include <optional>
#include <utility>

namespace wirepane {

// Hands out the sequence numbers of headlines: per service and day, from 1 on, none twice. Numbers are kept
// in memory during a transaction and written at its end.
class DayNumbers {
public:
    explicit DayNumbers(Database& database);

    // Forgets what was handed out and not saved: at the start of every transaction.
    void restart() { days.clear(); }
    // The next number; nothing when the day has none left, or on failure (then `failed` is set).
    std::optional<std::int32_t> next(unsigned char service, std::int32_t day, bool& failed);
    // Takes note of a number that was not handed out here. False on failure.
    bool use(unsigned char service, std::int32_t day, std::int32_t number);
    // Writes what changed. False on failure.
    bool save();

private:
    struct Day {
        std::int32_t last = 0;
        bool changed = false;
    };
    Day* find(unsigned char service, std::int32_t day);  // null on failure

    Statement read;
    Statement write;
    std::map<std::pair<unsigned char, std::int32_t>, Day> days;
};

}  // namespace wirepane
