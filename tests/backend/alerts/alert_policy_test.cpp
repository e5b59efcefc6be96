// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_policy.h"

#include "tests/backend/store/store_fixture.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int minutesOf(int hour, int minute) {
    return hour * 60 + minute;
}

TEST(AlertPolicy, SaysWhyItKeepsSilentTheNewsFirst) {
    using Outcome = AlertOutcome;
    AlertRule paused;
    paused.name = u"paused"_s;
    paused.pauseSeconds = 60;
    AlertRule linked;
    linked.name = u"linked"_s;
    linked.onlyConnected = true;
    AlertRule off;
    off.name = u"off"_s;
    off.isOn = false;
    const AlertPolicy::Conditions usual;
    const AlertPolicy::Conditions apart{false, 0, 0};
    const AlertPolicy::Conditions overMidnight{true, minutesOf(22, 0), minutesOf(7, 0)};
    const AlertPolicy::Conditions overNoon{true, minutesOf(12, 0), minutesOf(13, 0)};
    struct Step {
        const AlertRule& rule;
        QString title;
        std::int64_t published;
        std::int64_t matched;
        const AlertPolicy::Conditions& conditions;
        Outcome outcome;
    };
    const Step steps[] = {
        {paused, u"one"_s, at(9, 0), at(9, 0), usual, Outcome::Told},
        {paused, u"two"_s, at(9, 0), at(9, 0, 59), usual, Outcome::Pause},
        {paused, u"one"_s, at(9, 1), at(9, 1), usual, Outcome::Duplicate},
        {linked, u"one"_s, at(9, 1), at(9, 1), usual, Outcome::Told},
        {paused, u"three"_s, at(9, 1), at(9, 1), usual, Outcome::Told},
        {paused, u"two"_s, at(9, 2), at(9, 2), usual, Outcome::Duplicate},
        {paused, u"four"_s, at(9, 2), at(9, 12), usual, Outcome::Told},
        {paused, u"five"_s, at(9, 2), at(9, 12, 1), usual, Outcome::Late},
        {paused, u"one"_s, at(10, 0), at(10, 0), usual, Outcome::Told},
        {linked, u"six"_s, at(10, 0), at(10, 0), apart, Outcome::Disconnected},
        {paused, u"six"_s, at(10, 2), at(10, 2), apart, Outcome::Told},
        {off, u"six"_s, at(10, 2), at(10, 2), usual, Outcome::RuleOff},
        {linked, u"seven"_s, at(11, 59, 59), at(11, 59, 59), overNoon, Outcome::Told},
        {linked, u"eight"_s, at(12, 0), at(12, 0), overNoon, Outcome::QuietHours},
        {linked, u"nine"_s, at(13, 0), at(13, 0), overNoon, Outcome::Told},
        {linked, u"ten"_s, at(23, 0), at(23, 0), overMidnight, Outcome::QuietHours},
        {linked, u"early"_s, at(6, 59), at(6, 59), overMidnight, Outcome::QuietHours},
        {linked, u"not quiet"_s, at(22, 0), at(22, 0), usual, Outcome::Told},
        // The clock is set back.
        {linked, u"back"_s, at(21, 59), at(21, 59), usual, Outcome::Told},
        {paused, u"late"_s, at(20, 0), at(20, 0), usual, Outcome::Told},
        {paused, u"before"_s, at(19, 59, 30), at(19, 59, 30), usual, Outcome::Pause},
        {paused, u"long before"_s, at(19, 50), at(19, 50), usual, Outcome::Told},
        {paused, u"pausing again"_s, at(19, 50), at(19, 50, 30), usual, Outcome::Pause},
        {paused, u"late"_s, at(19, 52), at(19, 52), usual, Outcome::Duplicate},
    };
    AlertPolicy policy;
    std::vector<AlertEntry> all;
    for (const Step& step : steps) {
        AlertEntry entry;
        entry.rule = step.rule.name;
        entry.title = step.title;
        entry.headline.time = step.published;
        entry.matched = step.matched;
        policy.decide(entry, step.rule, step.conditions);
        EXPECT_EQ(entry.outcome, step.outcome)
            << step.rule.name.toStdString() << ' ' << step.title.toStdString();
        all.push_back(entry);
    }
    // As it would have gone on after a restart.
    AlertEntry again = all.front();
    again.matched = again.headline.time = at(10, 1);
    AlertPolicy restarted(std::span<const AlertEntry>(all).first(9));
    restarted.decide(again, paused, usual);
    EXPECT_EQ(again.outcome, Outcome::Duplicate);
    again.title = u"another"_s;
    again.matched = at(10, 0, 30);
    restarted.decide(again, paused, usual);
    EXPECT_EQ(again.outcome, Outcome::Pause);
}

TEST(AlertSettingsText, ComesBackAndLeavesOutWhatCannotBeUnderstood) {
    AlertSettings settings = usualAlerts();
    settings.quietFrom = minutesOf(22, 0);
    settings.rules.front().pauseSeconds = 90;
    settings.rules.front().isOn = false;
    settings.rules.front().tint = 6;
    settings.rules.front().budget = 20;
    settings.rules.front().toastSeconds = 0;
    settings.rules.front().hasNotice = true;
    settings.rules.front().sound = u"chime"_s;
    settings.rules.front().tag = u"A tag"_s;
    EXPECT_EQ(alertsFromJson(alertsToJson(settings)), settings);
    const AlertSettings read = alertsFromJson(QJsonDocument::fromJson(R"({"quietFrom": 1440, "rules": [
        7, {"name": "", "query": "a"}, {"name": "a", "query": " "}, {"name": "b", "query": "x", "pause": -1, "tint": 7,
        "tag": " of  too\nmany words"},
        {"name": "b", "query": "y"}, {"name": "old", "query": "z", "sound": true},
        {"name": "silent", "query": "z", "sound": false}]})")
                                                  .object());
    ASSERT_EQ(read.rules.size(), 3U);
    EXPECT_EQ(read.rules[1].sound, soundOfDesktop) << "from before there was a choice";
    EXPECT_EQ(read.rules[2].sound, QString());
    EXPECT_EQ(read.rules.front().query, u"x"_s);
    EXPECT_EQ(read.rules.front().pauseSeconds, 0);
    EXPECT_EQ(read.rules.front().tint, 0);
    EXPECT_EQ(read.rules.front().tag, u"of too many"_s);
    EXPECT_EQ(read.quietFrom, 0);
}

}  // namespace

}  // namespace wirepane
