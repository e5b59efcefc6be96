// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace wirepane {

// Delays of the last hour, in microseconds: how long most take, and the longest. What is kept, and what one
// more costs, does not depend on how many there are: they are counted by minute, in steps of an eighth of
// their size. A value.
class DelayWindow {
public:
    // `moment`: when it was measured, in seconds of any clock; it may go back. Below 0 counts as 0.
    void add(std::int64_t delay, std::int64_t moment, std::int64_t times = 1);

    struct Figures {
        std::int64_t count = 0;
        // Half, and 99 of 100, take no longer; up to an eighth too long, and never longer than the longest.
        std::int64_t half = 0;
        std::int64_t most = 0;
        std::int64_t longest = 0;

        bool operator==(const Figures&) const = default;
    };
    Figures figures(std::int64_t now) const;

private:
    static constexpr int minutes = 60;

    struct Minute {
        std::int64_t number = -1;  // since 1970; -1: nothing is in it
        std::int64_t longest = 0;
        std::vector<std::int64_t> counts;  // by step, as far as there are any
    };
    std::array<Minute, minutes> ring;
};

}  // namespace wirepane
