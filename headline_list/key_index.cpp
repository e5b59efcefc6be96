// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/key_index.h"

#include <bit>

namespace {

std::uint64_t hashOf(const HeadlineKey& key) {
    std::uint64_t h = static_cast<std::uint64_t>(key.time) * 0x9E3779B97F4A7C15U;
    h ^= (static_cast<std::uint64_t>(static_cast<std::uint32_t>(key.sequence)) << 8) + key.service;
    h *= 0xBF58476D1CE4E5B9U;
    return h ^ (h >> 31);
}

}  // namespace

void KeyIndex::rebuild(std::span<const CHeadlineTable> entries) {
    positions.assign(std::bit_ceil(entries.size() + entries.size() / 3 + 1), 0);
    const std::size_t mask = positions.size() - 1;
    for (std::size_t position = entries.size(); position-- > 0;) {
        const HeadlineKey key = KeyOf(entries[position]);
        std::size_t slot = hashOf(key) & mask;
        while (positions[slot] != 0 && KeyOf(entries[positions[slot] - 1]) != key)
            slot = (slot + 1) & mask;
        if (positions[slot] == 0)
            positions[slot] = static_cast<std::uint32_t>(position + 1);
    }
}

std::ptrdiff_t KeyIndex::find(std::span<const CHeadlineTable> entries, const HeadlineKey& key) const {
    if (positions.empty())
        return -1;
    const std::size_t mask = positions.size() - 1;
    for (std::size_t slot = hashOf(key) & mask; positions[slot] != 0; slot = (slot + 1) & mask) {
        const std::size_t position = positions[slot] - 1;
        if (KeyOf(entries[position]) == key)
            return static_cast<std::ptrdiff_t>(position);
    }
    return -1;
}
