// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/day_plan.h"

#include "sample_wire/random.h"

#include <algorithm>
#include <tuple>

namespace wirepane::sample {

namespace {

constexpr int quietSeconds = 600;
constexpr int followedSeconds = 10;
constexpr int burstPermille = 25;
constexpr std::uint32_t firstFillerOrdinal = 10'000'000;

bool earlier(const PlannedItem& a, const PlannedItem& b) {
    return std::tie(a.time, a.service, a.ordinal) < std::tie(b.time, b.service, b.ordinal);
}

// Shares a total out by weight; what rounding leaves goes to the first ones.
std::vector<int> sharedOut(int total, const std::vector<unsigned char>& services) {
    if (services.empty())
        return {};
    int weights = 0;
    for (unsigned char service : services)
        weights += roleOf(service).share;
    std::vector<int> counts;
    int left = total;
    for (unsigned char service : services) {
        counts.push_back(static_cast<int>(static_cast<std::int64_t>(total) * roleOf(service).share /
                                          std::max(weights, 1)));
        left -= counts.back();
    }
    for (int i = 0; i < left; ++i)
        ++counts[static_cast<std::size_t>(i) % counts.size()];
    return counts;
}

}  // namespace

Rhythm::Rhythm(std::span<const RhythmPoint> points) {
    std::size_t next = 1;
    int sum = 0;
    for (int minute = 0; minute < static_cast<int>(sums.size()); ++minute) {
        while (next + 1 < points.size() && points[next].minute <= minute)
            ++next;
        const RhythmPoint& from = points[next - 1];
        const RhythmPoint& to = points[next];
        const int passed = std::min(minute, to.minute) - from.minute;
        sum += from.weight + (to.weight - from.weight) * passed / (to.minute - from.minute);
        sums[static_cast<std::size_t>(minute)] = sum;
    }
}

int Rhythm::minuteFor(std::uint64_t draw) const {
    const int point = inRange(draw, 0, sums.back() - 1);
    return static_cast<int>(std::upper_bound(sums.begin(), sums.end(), point) - sums.begin());
}

DayPlan::DayPlan(std::vector<unsigned char> services, int headlinesPerDay, std::uint64_t seed)
    : ids(std::move(services)), planSeed(seed) {
    for (unsigned char service : ids)
        rhythms.emplace_back(roleOf(service).rhythm);
    workingDayCounts = sharedOut(headlinesPerDay, ids);
}

int DayPlan::countOf(std::size_t service, Day day) const {
    const std::int64_t count = workingDayCounts[service];
    return static_cast<int>(day.isWeekend() ? count * roleOf(ids[service]).weekendPermille / 1000 : count);
}

std::vector<PlannedItem> DayPlan::day(Day day) const {
    std::vector<PlannedItem> items;
    for (std::size_t service = 0; service < ids.size(); ++service) {
        const std::size_t first = items.size();
        const int count = countOf(service, day);
        Random random(hashOf(planSeed, ids[service], static_cast<std::uint64_t>(day.number)));
        for (int i = 0; i < count; ++i) {
            const int minute = rhythms[service].minuteFor(random.next());
            const int second = random.between(0, 59);
            items.push_back({day.startUtc() + minute * 60 + second, static_cast<std::uint16_t>(service)});
        }
        std::sort(items.begin() + static_cast<std::ptrdiff_t>(first), items.end(), earlier);
        for (std::size_t i = first; i < items.size(); ++i)
            items[i].ordinal = static_cast<std::uint32_t>(i - first);
    }
    std::sort(items.begin(), items.end(), earlier);
    return items;
}

std::vector<PlannedItem> DayPlan::dayUntil(std::int64_t now) const {
    std::vector<PlannedItem> items = followedDay(LocalTime::fromUtc(now).day);
    std::erase_if(items, [now](const PlannedItem& item) { return item.time > now; });
    std::vector<bool> quiet(ids.size(), true);
    for (const PlannedItem& item : items) {
        if (!item.filler && item.time > now - quietSeconds)
            quiet[item.service] = false;
    }
    std::erase_if(items, [&](const PlannedItem& item) {
        return item.filler && (!quiet[item.service] || item.time <= now - quietSeconds);
    });
    return items;
}

std::vector<PlannedItem> DayPlan::followedDay(Day followed) const {
    std::vector<PlannedItem> items = day(followed);
    std::vector<std::uint16_t> ordinary;
    for (std::size_t service = 0; service < ids.size(); ++service) {
        if (isOrdinaryWire(ids[service]))
            ordinary.push_back(static_cast<std::uint16_t>(service));
    }
    if (ordinary.empty())
        return items;
    std::vector<bool> busy(daySeconds / followedSeconds);
    for (const PlannedItem& item : items) {
        if (isOrdinaryWire(ids[item.service]))
            busy[static_cast<std::size_t>((item.time - followed.startUtc()) / followedSeconds)] = true;
    }
    for (std::size_t slot = 0; slot < busy.size(); ++slot) {
        Random random(hashOf(planSeed, static_cast<std::uint64_t>(followed.number), slot));
        const int chosen = random.between(0, followedSeconds - 1);
        // Where something happens, now and then much does.
        const bool isBurst = busy[slot] && random.chance(burstPermille);
        if (busy[slot] && !isBurst)
            continue;
        const int end = isBurst ? followedSeconds : chosen + 1;
        for (int within = isBurst ? 0 : chosen; within < end; ++within) {
            const auto second =
                static_cast<std::uint32_t>(slot) * followedSeconds + static_cast<std::uint32_t>(within);
            const int service = random.between(0, static_cast<int>(ordinary.size()) - 1);
            items.push_back({followed.startUtc() + second, ordinary[static_cast<std::size_t>(service)],
                             firstFillerOrdinal + second, true});
        }
    }
    std::sort(items.begin(), items.end(), earlier);
    return items;
}

}  // namespace wirepane::sample
