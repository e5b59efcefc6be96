// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace wirepane {

// One headline of a day.
struct DayEntry {
    std::int32_t second = 0;  // since the day's begin
    std::int32_t sequence = 0;

    bool operator==(const DayEntry&) const = default;
    bool operator<(const DayEntry& other) const {
        return second != other.second ? second < other.second : sequence < other.sequence;
    }
};

// The entries of a day, each once, in the order of the table. They stand in blocks, so that late news comes
// in between at the same cost however long the day is.
class DayEntries {
public:
    DayEntries() = default;
    // Each once, in order.
    explicit DayEntries(const std::vector<DayEntry>& sorted);

    // False when it is there already, or is not.
    bool add(const DayEntry& entry);
    bool remove(const DayEntry& entry);
    std::size_t size() const { return count; }

    template <class Use>
    void forEachNewestFirst(Use use) const {
        for (auto block = blocks.rbegin(); block != blocks.rend(); ++block) {
            for (auto entry = block->rbegin(); entry != block->rend(); ++entry)
                use(*entry);
        }
    }

private:
    using Block = std::vector<DayEntry>;
    static constexpr std::size_t fullBlock = 1024;

    // The block where the entry stands, or would stand.
    std::vector<Block>::iterator blockOf(const DayEntry& entry);
    void append(const DayEntry& entry);

    std::vector<Block> blocks;  // oldest first, none is empty
    std::size_t count = 0;
};

}  // namespace wirepane
