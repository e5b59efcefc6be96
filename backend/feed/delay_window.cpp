// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/delay_window.h"

#include <algorithm>
#include <bit>

namespace wirepane {

namespace {

constexpr int parts = 8;  // steps of a doubling
constexpr int bitsOfParts = 3;
constexpr std::int64_t secondsOfMinute = 60;

// Each delay below `parts` has a step of its own; those above share eight in each doubling.
std::size_t stepOf(std::int64_t delay) {
    if (delay < parts)
        return static_cast<std::size_t>(delay);
    const int shift = static_cast<int>(std::bit_width(static_cast<std::uint64_t>(delay))) - 1 - bitsOfParts;
    return static_cast<std::size_t>(shift * parts + (delay >> shift));
}

// The longest delay of a step.
std::int64_t endOf(std::size_t step) {
    const auto number = static_cast<std::int64_t>(step);
    if (number < parts)
        return number;
    const std::int64_t shift = number / parts - 1;
    return ((number % parts + parts + 1) << shift) - 1;
}

std::int64_t valueAt(const std::vector<std::int64_t>& counts, std::int64_t place, std::int64_t longest) {
    std::int64_t before = 0;
    for (std::size_t step = 0; step < counts.size(); ++step) {
        before += counts[step];
        if (before >= place)
            return std::min(endOf(step), longest);
    }
    return longest;
}

}  // namespace

void DelayWindow::add(std::int64_t delay, std::int64_t moment, std::int64_t times) {
    const std::int64_t known = std::max<std::int64_t>(0, delay);
    const std::int64_t number = std::max<std::int64_t>(0, moment) / secondsOfMinute;
    Minute& minute = ring[static_cast<std::size_t>(number % minutes)];
    if (minute.number != number)
        minute = {number, 0, {}};
    const std::size_t step = stepOf(known);
    if (minute.counts.size() <= step)
        minute.counts.resize(step + 1);
    minute.counts[step] += times;
    minute.longest = std::max(minute.longest, known);
}

DelayWindow::Figures DelayWindow::figures(std::int64_t now) const {
    const std::int64_t last = std::max<std::int64_t>(0, now) / secondsOfMinute;
    std::vector<std::int64_t> all;
    Figures figures;
    for (const Minute& minute : ring) {
        if (minute.number < 0 || minute.number <= last - minutes || minute.number > last)
            continue;
        all.resize(std::max(all.size(), minute.counts.size()));
        for (std::size_t step = 0; step < minute.counts.size(); ++step) {
            all[step] += minute.counts[step];
            figures.count += minute.counts[step];
        }
        figures.longest = std::max(figures.longest, minute.longest);
    }
    if (figures.count == 0)
        return figures;
    figures.half = valueAt(all, (figures.count + 1) / 2, figures.longest);
    figures.most = valueAt(all, (figures.count * 99 + 99) / 100, figures.longest);
    return figures;
}

}  // namespace wirepane
