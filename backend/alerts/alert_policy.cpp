// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_policy.h"

#include <QDateTime>
#include <QTime>

#include <algorithm>
#include <cstdlib>

namespace wirepane {

namespace {

constexpr qsizetype mostTitles = 1000;  // of a rule

bool isQuiet(std::int64_t moment, int from, int to) {
    const QTime time = QDateTime::fromSecsSinceEpoch(moment).time();
    const int minute = time.hour() * 60 + time.minute();
    return from <= to ? minute >= from && minute < to : minute >= from || minute < to;
}

// Also when the clock was set back meanwhile.
bool isWithin(std::int64_t seconds, std::int64_t before, std::int64_t now) {
    return std::abs(now - before) < seconds;
}

}  // namespace

AlertPolicy::AlertPolicy(std::span<const AlertEntry> before) {
    for (const AlertEntry& entry : before)
        remember(entry);
}

void AlertPolicy::decide(AlertEntry& entry, const AlertRule& rule, const Conditions& conditions) {
    entry.outcome = outcomeOf(entry, rule, conditions);
    remember(entry);
}

// What the news is comes before what the moment is: a duplicate is one in quiet hours, too.
AlertOutcome AlertPolicy::outcomeOf(const AlertEntry& entry, const AlertRule& rule,
                                    const Conditions& conditions) const {
    if (!rule.isOn)
        return AlertOutcome::RuleOff;
    const OfRule known = ofRules.value(rule.name);
    const auto said = known.said.constFind(entry.title);
    if (said != known.said.cend() && isWithin(sameWithin, *said, entry.matched))
        return AlertOutcome::Duplicate;
    if (entry.matched - entry.headline.time > lateAfter)
        return AlertOutcome::Late;
    if (rule.onlyConnected && !conditions.isConnected)
        return AlertOutcome::Disconnected;
    if (isQuiet(entry.matched, conditions.quietFrom, conditions.quietTo))
        return AlertOutcome::QuietHours;
    if (known.lastTold != 0 && isWithin(rule.pauseSeconds, known.lastTold, entry.matched))
        return AlertOutcome::Pause;
    return AlertOutcome::Told;
}

void AlertPolicy::remember(const AlertEntry& entry) {
    OfRule& known = ofRules[entry.rule];
    if (entry.outcome == AlertOutcome::Told)
        known.lastTold = entry.matched;
    if (known.said.size() == mostTitles)
        known.said.removeIf(
            [&](const auto& said) { return !isWithin(sameWithin, said.value(), entry.matched); });
    if (known.said.size() < mostTitles && entry.outcome != AlertOutcome::Duplicate)
        known.said.insert(entry.title, entry.matched);
}

}  // namespace wirepane
