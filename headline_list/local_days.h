// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace wirepane {

// Tells which local calendar day a time falls on, quickly: each UTC day is asked of the calendar once. An
// answer once given stays, also when the machine's time zone changes: an index may be built on it.
class LocalDays {
public:
    // A number that two times (seconds since 1970) share when they fall on the same local day. Times outside
    // any calendar are taken by their UTC day.
    std::int64_t of(std::int64_t time);

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

// The local calendar days that a list's headlines fall on, each told by one of its times.
class ListedDays {
public:
    void add(std::int64_t time);
    void clear();
    const std::vector<std::int64_t>& times() const { return timeOfEach; }

private:
    LocalDays days;
    std::unordered_set<std::int64_t> listed;
    std::vector<std::int64_t> timeOfEach;
    std::optional<std::int64_t> last;  // most headlines fall on the day of the one before
};

}  // namespace wirepane
