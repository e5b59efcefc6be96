// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

namespace wirepane {

// When a source is asked next: more often the more often news comes, never before its publisher wishes, ever
// later while it fails, and a little by chance, so that many sources spread.
class PollSchedule {
public:
    // `fixedSeconds`: what the user has set; 0: it adapts.
    explicit PollSchedule(int fixedSeconds = 0) : fixed(fixedSeconds) {}

    struct Outcome {
        bool isGood = false;
        int news = 0;                      // that was new
        std::optional<std::int64_t> wish;  // of the publisher, seconds
    };
    // Milliseconds until the next request. `chance`: 0 to 1. `now`: seconds since 1970.
    std::int64_t next(const Outcome& outcome, std::int64_t now, double chance);

private:
    void learn(int news, std::int64_t now);

    int fixed;
    int failures = 0;             // in a row
    double gap = 0;               // seconds between two arrivals of news, as they were lately; 0: not known
    std::int64_t lastNews = 0;    // when some came, or the first answer; 0: there was none
    std::int64_t lastAnswer = 0;  // 0: there was none
};

// When a stream that has ended is called again: soon where it had stood, ever later while it does not.
class CallSchedule {
public:
    // Milliseconds until the next call. `hasStood`: it had brought something, or stood for a while. `wish`:
    // of the publisher, seconds. `chance`: 0 to 1.
    std::int64_t next(bool hasStood, std::optional<std::int64_t> wish, double chance);

private:
    int failures = 0;  // in a row
};

}  // namespace wirepane
