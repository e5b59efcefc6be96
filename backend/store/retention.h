// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace wirepane {

// How much news a store keeps; 0: as much as comes.
struct Retention {
    int days = 0;            // news that is older leaves
    std::int64_t bytes = 0;  // of the file; the oldest news leaves when more are in use

    bool isOn() const { return days > 0 || bytes > 0; }
    bool operator==(const Retention&) const = default;
};

// What a small step towards it has done.
struct TrimStep {
    int removed = 0;  // headlines
    bool isDone = false;
};

}  // namespace wirepane
