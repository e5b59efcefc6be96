// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/local_days.h"
#include "host/contract/records.h"

#include <cstdint>

namespace wirepane {

// What a row index takes for the same: the same number of the same local day.

// Spreads the bits of two numbers over all of the result.
inline std::uint64_t mixedBits(std::uint64_t first, std::uint64_t second) {
    std::uint64_t h = first * 0x9E3779B97F4A7C15U;
    h ^= second;
    h = (h ^ (h >> 29)) * 0xBF58476D1CE4E5B9U;
    h = (h ^ (h >> 32)) * 0x94D049BB133111EBU;
    return h ^ (h >> 31);
}

// The leading half, by which a row finds its part of the index, is that of its neighbours too: headlines come
// with numbers in sequence, so the part that the next one needs has just been used. The rest is its own.
inline std::uint64_t hashByNeighbourhood(std::uint64_t first, const CHeadlineTable& entry) {
    constexpr int neighbours = 8;  // bits: 256 numbers, fewer than a full part of the index has room for
    constexpr std::uint64_t leadingHalf = 0xFFFFFFFF00000000U;
    const std::uint64_t number = static_cast<std::uint32_t>(entry.sequence);
    const std::uint64_t leading = mixedBits(first, ((number >> neighbours) << 8) + entry.service);
    const std::uint64_t own = mixedBits(first, (number << 8) + entry.service);
    return (leading & leadingHalf) | (own & ~leadingHalf);
}

inline bool haveSameNumber(const CHeadlineTable& a, const HeadlineKey& b) {
    return a.sequence == b.sequence && a.service == b.service;
}

class SameNumberOnDay {
public:
    std::uint64_t hash(const CHeadlineTable& entry) const {
        return hashByNeighbourhood(static_cast<std::uint64_t>(days.of(entry.time)), entry);
    }
    bool same(const CHeadlineTable& a, const CHeadlineTable& b) const {
        return haveSameNumber(a, keyOf(b)) && days.of(a.time) == days.of(b.time);
    }

private:
    mutable LocalDays days;
};

}  // namespace wirepane
