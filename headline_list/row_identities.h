// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/local_days.h"
#include "host/contract/records.h"

#include <cstdint>

// What a row index takes for the same: the same number of the same local day.

inline std::uint64_t MixedHash(std::uint64_t first, const CHeadlineTable& entry) {
    std::uint64_t h = first * 0x9E3779B97F4A7C15U;
    h ^= (static_cast<std::uint64_t>(static_cast<std::uint32_t>(entry.sequence)) << 8) + entry.service;
    h = (h ^ (h >> 29)) * 0xBF58476D1CE4E5B9U;
    h = (h ^ (h >> 32)) * 0x94D049BB133111EBU;
    return h ^ (h >> 31);
}

inline bool HaveSameNumber(const CHeadlineTable& a, const HeadlineKey& b) {
    return a.sequence == b.sequence && a.service == b.service;
}

class SameNumberOnDay {
public:
    std::uint64_t hash(const CHeadlineTable& entry) const {
        return MixedHash(static_cast<std::uint64_t>(days.of(entry.time)), entry);
    }
    bool same(const CHeadlineTable& a, const CHeadlineTable& b) const {
        return HaveSameNumber(a, KeyOf(b)) && days.of(a.time) == days.of(b.time);
    }

private:
    mutable LocalDays days;
};
