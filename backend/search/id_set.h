// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace wirepane {

// A set of headline ids, one bit each.
class IdSet {
public:
    void add(std::int64_t id) {
        const auto word = std::size_t(id >> 6);
        if (word >= bits.size())
            bits.resize(word + word / 2 + 1);
        bits[word] |= bitOf(id);
    }
    bool contains(std::int64_t id) const {
        const auto word = std::size_t(id >> 6);
        return word < bits.size() && (bits[word] >> (id & 63) & 1) != 0;
    }
    // False only when none of these ids is in the set; a wide range is not looked through.
    bool mayHoldAny(std::int64_t first, std::int64_t last) const {
        constexpr std::size_t wide = 64;
        const auto from = std::size_t(first >> 6);
        const std::size_t end = std::min(std::size_t(last >> 6) + 1, bits.size());
        if (end > from && end - from > wide)
            return true;
        for (std::size_t word = from; word < end; ++word) {
            if (bits[word] != 0)
                return true;
        }
        return false;
    }
    void keepCommon(const IdSet& other) {
        if (bits.size() > other.bits.size())
            bits.resize(other.bits.size());
        for (std::size_t i = 0; i < bits.size(); ++i)
            bits[i] &= other.bits[i];
    }
    void add(const IdSet& other) {
        if (bits.size() < other.bits.size())
            bits.resize(other.bits.size());
        for (std::size_t i = 0; i < other.bits.size(); ++i)
            bits[i] |= other.bits[i];
    }
    void remove(const IdSet& other) {
        for (std::size_t i = 0; i < std::min(bits.size(), other.bits.size()); ++i)
            bits[i] &= ~other.bits[i];
    }
    bool hasAtMost(std::size_t most) const {
        std::size_t count = 0;
        for (std::size_t i = 0; i < bits.size() && count <= most; ++i)
            count += std::size_t(std::popcount(bits[i]));
        return count <= most;
    }
    // Calls `take` with each id, ascending.
    template <class Take>
    void forEach(Take take) const {
        for (std::size_t i = 0; i < bits.size(); ++i) {
            for (std::uint64_t left = bits[i]; left != 0; left &= left - 1)
                take(std::int64_t(i * 64) + std::countr_zero(left));
        }
    }

private:
    static std::uint64_t bitOf(std::int64_t id) { return std::uint64_t(1) << (id & 63); }

    std::vector<std::uint64_t> bits;
};

}  // namespace wirepane
