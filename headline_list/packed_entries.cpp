// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/packed_entries.h"

#include <iterator>

namespace wirepane {

namespace {

constexpr auto atOffset = [](auto& content, std::size_t offset) {
    return content.begin() + static_cast<std::ptrdiff_t>(offset);
};

}  // namespace

CHeadlineTable PackedEntries::operator[](std::size_t offset) const {
    const HeadlineKey& key = keys[offset];
    const Ties tie = ties.empty() ? Ties() : ties[offset];
    return {key.time, key.sequence, key.service, tie.second, tie.last};
}

void PackedEntries::resize(std::size_t count) {
    keys.resize(count);
    if (!ties.empty())
        ties.resize(count);
}

void PackedEntries::set(std::size_t offset, const CHeadlineTable& entry) {
    keys[offset] = keyOf(entry);
    const Ties tie{entry.second, entry.last};
    if (ties.empty() && !(tie == Ties()))
        ties.resize(keys.size());
    if (!ties.empty())
        ties[offset] = tie;
}

void PackedEntries::insert(std::size_t offset, const CHeadlineTable& entry) {
    keys.emplace(atOffset(keys, offset));
    if (!ties.empty())
        ties.emplace(atOffset(ties, offset));
    set(offset, entry);
}

void PackedEntries::erase(std::size_t offset) {
    keys.erase(atOffset(keys, offset));
    if (!ties.empty())
        ties.erase(atOffset(ties, offset));
}

void PackedEntries::moveFrom(std::size_t offset, PackedEntries& others) {
    if (ties.empty() != others.ties.empty()) {
        ties.resize(keys.size());
        others.ties.resize(others.keys.size());
    }
    keys.insert(keys.end(), atOffset(others.keys, offset), others.keys.end());
    if (!others.ties.empty())
        ties.insert(ties.end(), atOffset(others.ties, offset), others.ties.end());
    others.resize(offset);
}

}  // namespace wirepane
