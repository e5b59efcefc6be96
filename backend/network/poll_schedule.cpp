// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/poll_schedule.h"

#include "backend/network/network_source.h"

#include <algorithm>
#include <cmath>

namespace wirepane {

namespace {

constexpr double longestAdapted = 900;   // seconds
constexpr double firstInterval = 60;     // before anything is known
constexpr double requestsOfGap = 8;      // between two arrivals of news
constexpr double weightOfLonger = 0.3;   // of the newest gap among those before: slow to fall asleep,
constexpr double weightOfShorter = 0.7;  // quick to wake up
constexpr double firstRetry = 15;        // seconds, doubled with each failure
constexpr double longestRetry = 1800;
constexpr double firstCall = 3;  // seconds, of a stream
constexpr double spread = 0.2;

// `first` seconds, doubled with each further failure.
double afterFailures(double first, int failures) {
    return std::min(longestRetry, first * std::pow(2.0, std::min(failures - 1, 10)));
}

}  // namespace

std::int64_t PollSchedule::next(const Outcome& outcome, std::int64_t now, double chance) {
    failures = outcome.isGood ? 0 : failures + 1;
    if (outcome.isGood)
        learn(outcome.news, now);
    const double adapted =
        gap == 0 ? firstInterval : std::clamp<double>(gap / requestsOfGap, shortestInterval, longestAdapted);
    double seconds = fixed > 0 ? fixed : adapted;
    if (failures > 0)
        seconds = std::max(seconds, afterFailures(firstRetry, failures));
    seconds = std::max(seconds, static_cast<double>(outcome.wish.value_or(0)));
    // By chance it is only later: a wish, and the shortest interval, are kept.
    return std::llround(seconds * (1 + spread * chance) * 1000);
}

void PollSchedule::learn(int news, std::int64_t now) {
    const std::int64_t last = lastNews != 0 ? lastNews : lastAnswer;
    // Several at once have come since the last answer, however long it was quiet before.
    const double newest = last == 0  ? 0
                          : news > 1 ? static_cast<double>(now - lastAnswer) / news
                                     : static_cast<double>(now - last);
    if (news > 0 && newest > 0)
        gap =
            gap == 0 ? newest : gap * std::pow(newest / gap, newest < gap ? weightOfShorter : weightOfLonger);
    else
        gap = std::max(gap, newest);  // it is at least as long as it has lasted
    lastNews = news > 0 || lastNews == 0 ? now : lastNews;
    lastAnswer = now;
}

std::int64_t CallSchedule::next(bool hasStood, std::optional<std::int64_t> wish, double chance) {
    failures = hasStood ? 0 : failures + 1;
    const double seconds = hasStood ? firstCall : afterFailures(firstCall, failures);
    return std::llround(std::max(seconds, static_cast<double>(wish.value_or(0))) * (1 + spread * chance) *
                        1000);
}

}  // namespace wirepane
