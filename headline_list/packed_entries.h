// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace wirepane {

// Entries in half of their room, for lists of millions: what a host hands over for ties is kept where one of
// them has any.
class PackedEntries {
public:
    std::size_t size() const { return keys.size(); }
    bool empty() const { return keys.empty(); }

    CHeadlineTable operator[](std::size_t offset) const;
    std::int64_t timeAt(std::size_t offset) const { return keys[offset].time; }

    void resize(std::size_t count);
    void set(std::size_t offset, const CHeadlineTable& entry);
    void insert(std::size_t offset, const CHeadlineTable& entry);
    void erase(std::size_t offset);
    // Moves those from an offset on to the end of others.
    void moveFrom(std::size_t offset, PackedEntries& others);

private:
    struct Ties {
        std::int64_t second = 0;
        std::int64_t last = 0;

        bool operator==(const Ties&) const = default;
    };
    static_assert(2 * sizeof(HeadlineKey) == sizeof(CHeadlineTable));

    std::vector<HeadlineKey> keys;
    std::vector<Ties> ties;  // of each, or of none
};

}  // namespace wirepane
