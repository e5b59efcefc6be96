// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/local_time.h"
#include "sample_wire/service_role.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace wirepane::sample {

// The rhythm of one service, ready to draw minutes from.
class Rhythm {
public:
    explicit Rhythm(std::span<const RhythmPoint> points);

    // A minute of the day, often where much is sent. The draw is any 64-bit number.
    int minuteFor(std::uint64_t draw) const;

private:
    std::array<int, 24 * 60> sums{};  // of the weights up to and with each minute
};

// The place of one item in a day.
struct PlannedItem {
    std::int64_t time = 0;      // seconds since 1970, UTC
    std::uint16_t service = 0;  // index into the services of the plan
    std::uint32_t ordinal = 0;  // within the service and day, from 0
    bool filler = false;        // not part of the day's own: sent because the wires were quiet
};

// How many items the services send, and when.
class DayPlan {
public:
    DayPlan(std::vector<unsigned char> services, int headlinesPerDay, std::uint64_t seed);

    const std::vector<unsigned char>& services() const { return ids; }

    // The items of a day, from the first to the last.
    std::vector<PlannedItem> day(Day day) const;
    // The items of the day of the present moment up to then. An ordinary wire whose own items leave the last
    // minutes empty sends the fillers of these minutes, as those have them who follow the day.
    std::vector<PlannedItem> dayUntil(std::int64_t now) const;
    // The items of a day that is followed as it goes by: those of day(), and a filler of an ordinary wire in
    // every ten seconds in which none sends anything, and now and then one in each second of a burst.
    std::vector<PlannedItem> followedDay(Day day) const;

private:
    int countOf(std::size_t service, Day day) const;

    std::vector<unsigned char> ids;
    std::vector<Rhythm> rhythms;
    std::vector<int> workingDayCounts;
    std::uint64_t planSeed;
};

}  // namespace wirepane::sample
