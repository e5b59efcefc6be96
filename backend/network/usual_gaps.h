// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <cstdint>

namespace wirepane {

// What is usual for a source: how often news comes in each hour of working days and of weekends, learned over
// weeks. Silence is strange when by now three arrivals were to be expected: in an hour that is as busy as
// ever that is three times its usual gap, over a night it is nothing. Moments are seconds since 1970; hours
// are those of the local day.
class UsualGaps {
public:
    // The source has answered, or shown another sign of life. What lies between two of them within an hour
    // has been listened to.
    void listen(std::int64_t now);
    // News came; much at once is one arrival. Behind listen().
    void arrive(std::int64_t now);

    // Arrivals that were usual since the last one, and whether they are too many for there to be none. Hours
    // that are hardly known count for nothing.
    double expected(std::int64_t now) const;
    bool isStale(std::int64_t now) const { return expected(now) >= arrivalsMissed; }

    std::int64_t lastNews() const { return lastArrival; }  // 0: there was none

    // What has been learned, to be kept; what is no such text has taught nothing.
    QString text() const;
    static UsualGaps parse(const QString& text);

private:
    static constexpr double arrivalsMissed = 3;

    struct Slot {
        double hours = 0;  // that have been listened to
        double arrivals = 0;
    };
    static std::size_t slotAt(std::int64_t moment);

    std::array<Slot, 48> learned;  // the hours of working days, then of weekends
    std::int64_t lastHeard = 0;    // 0: never
    std::int64_t lastArrival = 0;
};

}  // namespace wirepane
