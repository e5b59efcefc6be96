// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace wirepane {

using BenchClock = std::chrono::steady_clock;

inline double secondsSince(BenchClock::time_point from) {
    return std::chrono::duration<double>(BenchClock::now() - from).count();
}

}  // namespace wirepane
