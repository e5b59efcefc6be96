// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/news_desk.h"

namespace wirepane::sample {

namespace {

constexpr std::size_t correctable = 8;  // how far back a correction reaches

bool isOpen(const Beat& beat, LocalTime at) {
    return at.minute >= beat.fromMinute && at.minute < beat.toMinute &&
           !(beat.tradingDaysOnly && at.day.isWeekend());
}

}  // namespace

NewsDesk::NewsDesk(unsigned char service, Day day, std::uint64_t seed, int correctionPermille)
    : role(roleOf(service)),
      daySeed(hashOf(seed, service, static_cast<std::uint64_t>(day.number), fact("desk"))),
      correctionRate(correctionPermille),
      variants(role.beats.size()) {
    for (std::size_t i = 0; i < variants.size(); ++i)
        variants[i] = inRange(hashOf(daySeed, i), 0, 11);
}

const Beat& NewsDesk::drawBeat(std::uint64_t draw, LocalTime at) const {
    int weights = 0;
    for (const Beat& beat : role.beats)
        weights += isOpen(beat, at) ? beat.weight : 0;
    int point = inRange(draw, 0, weights - 1);
    for (const Beat& beat : role.beats) {
        if (!isOpen(beat, at))
            continue;
        point -= beat.weight;
        if (point < 0)
            return beat;
    }
    return role.beats.back();
}

std::optional<Assignment> NewsDesk::correction(std::uint64_t draw) {
    if (recent.empty() || inRange(draw, 0, 999) >= correctionRate)
        return std::nullopt;
    const auto which = recent.begin() + inRange(hashOf(draw), 0, static_cast<int>(recent.size()) - 1);
    Assignment again = *which;
    recent.erase(which);
    again.version = 1;
    return again;
}

Assignment NewsDesk::next(const PlannedItem& item) {
    Random random(hashOf(daySeed, item.ordinal));
    const std::uint64_t correctionDraw = random.next();
    if (!item.filler)
        if (std::optional<Assignment> again = correction(correctionDraw))
            return *again;

    Assignment assignment;
    assignment.ordinal = item.ordinal;
    SceneSetting& setting = assignment.setting;
    setting.at = LocalTime::fromUtc(item.time);
    setting.seed = random.next();
    assignment.beat = &drawBeat(random.next(), setting.at);
    setting.topic = assignment.beat->topic;
    setting.language = random.chance(assignment.beat->englishPermille) ? Language::English : role.language;
    const bool elsewhere = setting.topic < Topic::StockMove && random.chance(role.otherMarketPermille);
    setting.market = elsewhere ? role.otherMarket : role.market;
    if (item.filler) {  // not of the day's own: must not move on what the day's own take turns with
        assignment.variant = random.between(0, 11);
        return assignment;
    }
    assignment.variant = variants[static_cast<std::size_t>(assignment.beat - role.beats.data())]++;
    recent.push_back(assignment);
    if (recent.size() > correctable)
        recent.pop_front();
    return assignment;
}

}  // namespace wirepane::sample
