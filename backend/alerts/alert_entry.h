// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace wirepane {

// What became of a headline that a rule matched. Stored by these numbers.
enum class AlertOutcome {
    Told = 0,
    RuleOff = 1,
    Disconnected = 2,
    Duplicate = 3,  // the same was said within the hour
    Late = 4,       // it was published, or came, too long ago
    QuietHours = 5,
    Pause = 6,
};
inline constexpr int lastAlertOutcome = 6;

// The words that a rule matched, by where they stand.
struct AlertWords {
    QStringList title;
    QStringList story;
};

// A headline that a rule matched. Moments are seconds since 1970.
struct AlertEntry {
    std::int64_t number = 0;  // rises from entry to entry of a store
    QString rule;
    HeadlineKey headline;
    QString title;
    // Which the rule matched, as they stand in the title, and those of the story behind `storyField`; none:
    // its symbols, topic or service.
    QStringList words;
    std::int64_t received = 0;
    std::int64_t matched = 0;
    std::int64_t told = 0;  // 0: not yet, or never
    AlertOutcome outcome = AlertOutcome::Told;

    static constexpr QLatin1StringView storyField{"story:"};
    AlertWords wordsByPlace() const;
};

}  // namespace wirepane
