// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/day_numbers.h"

#include <algorithm>
#include <limits>

namespace wirepane {

DayNumbers::DayNumbers(Database& database)
    : read(database, "SELECT last FROM numbering WHERE service = ? AND day = ?"),
      write(database, "REPLACE INTO numbering(service, day, last) VALUES(?, ?, ?)") {}

DayNumbers::Day* DayNumbers::find(unsigned char service, std::int32_t day) {
    const auto known = days.find({service, day});
    if (known != days.end())
        return &known->second;
    Query query(read, service, day);
    const std::int32_t last = query.next() ? query.smallNumber(0) : 0;
    if (query.failed())
        return nullptr;
    return &days.emplace(std::pair{service, day}, Day{last, false}).first->second;
}

std::optional<std::int32_t> DayNumbers::next(unsigned char service, std::int32_t day, bool& failed) {
    Day* const found = find(service, day);
    failed = found == nullptr;
    if (failed || found->last == std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    found->changed = true;
    return ++found->last;
}

bool DayNumbers::use(unsigned char service, std::int32_t day, std::int32_t number) {
    Day* const found = find(service, day);
    if (found == nullptr)
        return false;
    if (number > found->last)
        *found = {number, true};
    return true;
}

bool DayNumbers::save() {
    return std::all_of(days.begin(), days.end(), [this](auto& entry) {
        Day& day = entry.second;
        return !std::exchange(day.changed, false) ||
               Query(write, entry.first.first, entry.first.second, day.last).run();
    });
}

}  // namespace wirepane
