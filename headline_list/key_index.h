// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <cstdint>
#include <span>
#include <vector>

// Finds the position of a headline key in a vector of entries. It keeps positions only (four bytes a slot);
// the keys stay in the entries, which are handed in at every call.
class KeyIndex {
public:
    // Indexes all entries; of equal keys the one that stands last in `entries` counts.
    void rebuild(std::span<const CHeadlineTable> entries);

    // The position of the key in the entries that were indexed; -1 when it is not there.
    std::ptrdiff_t find(std::span<const CHeadlineTable> entries, const HeadlineKey& key) const;

    void clear() { positions.clear(); }

private:
    std::vector<std::uint32_t>
        positions;  // position + 1; 0 is free. A power of two, at most three quarters full
};
