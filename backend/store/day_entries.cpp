// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/day_entries.h"

#include <algorithm>
#include <utility>

namespace wirepane {

DayEntries::DayEntries(const std::vector<DayEntry>& sorted) : count(sorted.size()) {
    for (std::size_t begin = 0; begin < count; begin += fullBlock) {
        const auto first = sorted.begin() + static_cast<std::ptrdiff_t>(begin);
        blocks.emplace_back(first, first + static_cast<std::ptrdiff_t>(std::min(fullBlock, count - begin)));
    }
}

bool DayEntries::add(const DayEntry& entry) {
    // Most news is the latest.
    if (blocks.empty() || blocks.back().back() < entry) {
        append(entry);
        return true;
    }
    auto block = blockOf(entry);
    if (block->size() == fullBlock) {
        const auto middle = block->begin() + fullBlock / 2;
        Block later(middle, block->end());
        block->erase(middle, block->end());
        blocks.insert(block + 1, std::move(later));
        block = blockOf(entry);
    }
    const auto place = std::lower_bound(block->begin(), block->end(), entry);
    if (place != block->end() && *place == entry)
        return false;
    block->insert(place, entry);
    ++count;
    return true;
}

void DayEntries::append(const DayEntry& entry) {
    if (blocks.empty() || blocks.back().size() == fullBlock)
        blocks.emplace_back();
    blocks.back().push_back(entry);
    ++count;
}

bool DayEntries::remove(const DayEntry& entry) {
    if (blocks.empty())
        return false;
    const auto block = blockOf(entry);
    const auto place = std::lower_bound(block->begin(), block->end(), entry);
    if (place == block->end() || !(*place == entry))
        return false;
    block->erase(place);
    if (block->empty())
        blocks.erase(block);
    --count;
    return true;
}

std::vector<DayEntries::Block>::iterator DayEntries::blockOf(const DayEntry& entry) {
    const auto ends = [](const Block& block, const DayEntry& wanted) { return block.back() < wanted; };
    const auto found = std::lower_bound(blocks.begin(), blocks.end(), entry, ends);
    return found == blocks.end() ? found - 1 : found;
}

}  // namespace wirepane
