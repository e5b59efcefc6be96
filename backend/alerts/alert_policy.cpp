// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_policy.h"

#include <QDateTime>
#include <QTime>

#include <algorithm>

namespace wirepane {

namespace {

constexpr qsizetype mostTitles = 1000;  // of a rule

bool isQuiet(std::int64_t moment, int from, int to) {
    const QTime time = QDateTime::fromSecsSinceEpoch(moment).time();
    const int minute = time.hour() * 60 + time.minute();
    return from <= to ? minute >= from && minute < to : minute >= from || minute < to;
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
    if (said != known.said.cend() && entry.matched - *said < sameWithin)
        return AlertOutcome::Duplicate;
    if (entry.matched - entry.headline.time > lateAfter)
        return AlertOutcome::Late;
    if (rule.onlyConnected && !conditions.isConnected)
        return AlertOutcome::Disconnected;
    if (isQuiet(entry.matched, conditions.quietFrom, conditions.quietTo))
        return AlertOutcome::QuietHours;
    if (known.lastTold != 0 && entry.matched - known.lastTold < rule.pauseSeconds)
        return AlertOutcome::Pause;
    return AlertOutcome::Told;
}

void AlertPolicy::remember(const AlertEntry& entry) {
    OfRule& known = ofRules[entry.rule];
    if (entry.outcome == AlertOutcome::Told)
        known.lastTold = std::max(known.lastTold, entry.matched);
    if (known.said.size() == mostTitles)
        known.said.removeIf([&](const auto& said) { return entry.matched - said.value() >= sameWithin; });
    if (known.said.size() < mostTitles && entry.outcome != AlertOutcome::Duplicate)
        known.said.insert(entry.title, entry.matched);
}

}  // namespace wirepane
