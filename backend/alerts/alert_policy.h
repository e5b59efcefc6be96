// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_entry.h"
#include "backend/alerts/alert_rule.h"

#include <QHash>

#include <span>

namespace wirepane {

// Decides what is told of that which rules match, and why the rest is not. Pure: it goes by the moments that
// it is given.
class AlertPolicy {
public:
    // What holds for all rules.
    struct Conditions {
        bool isConnected = true;
        int quietFrom = 0;  // as AlertSettings has them
        int quietTo = 0;
    };

    // What was decided before, oldest first: pauses go on, and what was said is not said again.
    explicit AlertPolicy(std::span<const AlertEntry> before = {});

    // Sets the outcome of an entry that has all but that, and remembers it.
    void decide(AlertEntry& entry, const AlertRule& rule, const Conditions& conditions);

    static constexpr std::int64_t lateAfter = 600;    // seconds after it was published
    static constexpr std::int64_t sameWithin = 3600;  // seconds in which the same title is told once

private:
    struct OfRule {
        std::int64_t lastTold = 0;
        QHash<QString, std::int64_t> said;  // titles, and when each was matched first
    };
    AlertOutcome outcomeOf(const AlertEntry& entry, const AlertRule& rule,
                           const Conditions& conditions) const;
    void remember(const AlertEntry& entry);

    QHash<QString, OfRule> ofRules;
};

}  // namespace wirepane
