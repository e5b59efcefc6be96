// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/day_plan.h"
#include "sample_wire/scene.h"

#include <array>
#include <deque>
#include <optional>
#include <vector>

namespace wirepane::sample {

// What one item is to say.
struct Assignment {
    SceneSetting setting;
    const Beat* beat = nullptr;
    int variant = 0;  // which of the topic's headlines
    int version = 0;  // 1: a correction of an item sent before
    std::uint32_t ordinal = 0;
};

// Assigns what the items of one service and day say, one after the other. Headlines of a topic take turns, so
// that neighbours are worded differently; now and then an item corrects one sent shortly before.
class NewsDesk {
public:
    NewsDesk(unsigned char service, Day day, std::uint64_t seed, int correctionPermille);

    Assignment next(const PlannedItem& item);

private:
    const Beat& drawBeat(std::uint64_t draw, LocalTime at) const;
    std::optional<Assignment> correction(std::uint64_t draw);

    const ServiceRole& role;
    std::uint64_t daySeed;
    int correctionRate;
    std::vector<int> variants;  // per beat: the number of the next headline
    std::deque<Assignment> recent;
};

}  // namespace wirepane::sample
