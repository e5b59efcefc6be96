// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace wirepane::sample {

// Spreads the bits of a number evenly (the finishing step of SplitMix64).
constexpr std::uint64_t mix(std::uint64_t value) {
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9ULL;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebULL;
    return value ^ (value >> 31);
}

// A number that depends on all of the given ones and their order, the same on every platform.
constexpr std::uint64_t hashOf(std::uint64_t first) {
    return mix(first + 0x9e3779b97f4a7c15ULL);
}
template <class... More>
constexpr std::uint64_t hashOf(std::uint64_t first, std::uint64_t second, More... more) {
    return hashOf(hashOf(first) ^ second, more...);
}

// A number from low to high, both included, out of a hash. The bias is below one in ten million for the
// ranges here.
constexpr int inRange(std::uint64_t hash, int low, int high) {
    return low + static_cast<int>(((hash >> 32) * static_cast<std::uint64_t>(high - low + 1)) >> 32);
}

// SplitMix64: small, fast, and defined bit by bit.
class Random {
public:
    explicit constexpr Random(std::uint64_t seed) : state(seed) {}

    constexpr std::uint64_t next() { return mix(state += 0x9e3779b97f4a7c15ULL); }
    constexpr int between(int low, int high) { return inRange(next(), low, high); }
    constexpr bool chance(int permille) { return between(0, 999) < permille; }

private:
    std::uint64_t state;
};

}  // namespace wirepane::sample
