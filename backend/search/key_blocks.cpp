// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/key_blocks.h"

#include <algorithm>
#include <array>
#include <bit>
#include <iterator>
#include <utility>

namespace wirepane {

namespace {

constexpr std::size_t blockSize = 256;

bool isOlder(const StoredKey& a, const StoredKey& b) {
    return a.time != b.time ? a.time < b.time : a.sequence < b.sequence;
}

bool isSame(const StoredKey& a, const StoredKey& b) {
    return a.time == b.time && a.sequence == b.sequence;
}

std::uint8_t widthOf(std::uint64_t span) {
    return static_cast<std::uint8_t>(std::bit_width(span));
}

// Of keys that are alike the last one stays.
void keepLastOfEach(std::vector<StoredKey>& keys) {
    const auto kept = std::unique(keys.rbegin(), keys.rend(), isSame);
    keys.erase(keys.begin(), kept.base());
}

}  // namespace

KeyBlocks::KeyBlocks(const std::vector<CHeadlineTable>& newestFirst) {
    std::vector<StoredKey> piece;
    for (auto next = newestFirst.rbegin(); next != newestFirst.rend();) {
        piece.clear();
        for (; next != newestFirst.rend() && piece.size() < blockSize; ++next)
            piece.push_back({next->time, next->sequence, 0});
        append(piece, true);
    }
    blocks.shrink_to_fit();
}

KeyBlocks::Block::Block(const StoredKey* keys, std::size_t size)
    : firstTime(keys[0].time),
      firstSequence(keys[0].sequence),
      leastSequence(keys[0].sequence),
      leastId(keys[0].id),
      lastId(keys[0].id),
      count(static_cast<std::uint16_t>(size)) {
    std::int32_t lastSequence = leastSequence;
    for (std::size_t i = 1; i < size; ++i) {
        leastSequence = std::min(leastSequence, keys[i].sequence);
        lastSequence = std::max(lastSequence, keys[i].sequence);
        leastId = std::min(leastId, keys[i].id);
        lastId = std::max(lastId, keys[i].id);
    }
    const auto span = [](std::int64_t from, std::int64_t to) {
        return std::uint64_t(to) - std::uint64_t(from);
    };
    timeBits = widthOf(span(firstTime, keys[size - 1].time));
    sequenceBits = widthOf(span(leastSequence, lastSequence));
    idBits = widthOf(lastId - leastId);
    timesAt = static_cast<std::uint32_t>(size * idBits);
    sequencesAt = static_cast<std::uint32_t>(timesAt + size * timeBits);
    words = std::make_unique<std::uint64_t[]>((sequencesAt + size * sequenceBits) / 64 + 2);
    for (std::size_t i = 0; i < size; ++i) {
        pack(i * idBits, idBits, keys[i].id - leastId);
        pack(timesAt + i * timeBits, timeBits, span(firstTime, keys[i].time));
        pack(sequencesAt + i * sequenceBits, sequenceBits, span(leastSequence, keys[i].sequence));
    }
}

// Without a branch for each, since nothing foretells which ones are in the set.
std::uint16_t* KeyBlocks::Block::placesOf(const IdSet& ids, std::uint16_t* places) const {
    for (std::size_t place = 0; place < count; ++place) {
        *places = static_cast<std::uint16_t>(place);
        places += ids.contains(id(place)) ? 1 : 0;
    }
    return places;
}

void KeyBlocks::Block::pack(std::size_t bit, unsigned width, std::uint64_t value) {
    const unsigned shift = bit % 64;
    words[bit / 64] |= value << shift;
    if (shift + width > 64)
        words[bit / 64 + 1] |= value >> (64 - shift);
}

// All places first, so that the entries, of which there may be millions, are written once and at their place.
std::vector<CHeadlineTable> KeyBlocks::entriesOf(const IdSet& ids, unsigned char service) const {
    std::vector<std::uint16_t> places(count + 1);
    std::vector<std::uint16_t> found(blocks.size());  // by block
    std::uint16_t* end = places.data();
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        if (!ids.mayHoldAny(blocks[i].leastId, blocks[i].lastId))
            continue;
        std::uint16_t* const begin = std::exchange(end, blocks[i].placesOf(ids, end));
        found[i] = static_cast<std::uint16_t>(end - begin);
    }
    std::vector<CHeadlineTable> entries;
    entries.reserve(static_cast<std::size_t>(end - places.data()));
    for (std::size_t i = blocks.size(); i-- > 0;) {
        for (std::uint16_t left = found[i]; left > 0; --left) {
            --end;
            entries.push_back({blocks[i].time(*end), blocks[i].sequence(*end), service, 0, 0});
        }
    }
    return entries;
}

KeyBlocks KeyBlocks::only(const IdSet& ids) const {
    KeyBlocks found;
    std::array<std::uint16_t, blockSize + 1> places{};
    std::vector<StoredKey> keys;
    const auto packFirst = [&](std::size_t size) {
        found.blocks.emplace_back(keys.data(), size);
        found.count += size;
        keys.erase(keys.begin(), keys.begin() + std::ptrdiff_t(size));
    };
    for (const Block& block : blocks) {
        if (!ids.mayHoldAny(block.leastId, block.lastId))
            continue;
        const std::uint16_t* const end = block.placesOf(ids, places.data());
        for (const std::uint16_t* place = places.data(); place != end; ++place)
            keys.push_back({block.time(*place), block.sequence(*place), 0});
        if (keys.size() >= blockSize)
            packFirst(blockSize);
    }
    if (!keys.empty())
        packFirst(keys.size());
    found.blocks.shrink_to_fit();
    return found;
}

void KeyBlocks::appendTo(std::vector<CHeadlineTable>& entries, unsigned char service) const {
    entries.reserve(entries.size() + count);
    for (auto block = blocks.rbegin(); block != blocks.rend(); ++block) {
        for (std::size_t place = block->count; place-- > 0;)
            entries.push_back({block->time(place), block->sequence(place), service, 0, 0});
    }
}

bool KeyBlocks::hold(const HeadlineKey& key) const {
    const StoredKey wanted{key.time, key.sequence, 0};
    const auto behind = std::upper_bound(blocks.begin(), blocks.end(), wanted, isBefore);
    if (behind == blocks.begin())
        return false;
    std::vector<StoredKey> keys;
    unpack(*std::prev(behind), keys);
    return std::any_of(keys.begin(), keys.end(),
                       [&](const StoredKey& candidate) { return isSame(candidate, wanted); });
}

bool KeyBlocks::isBefore(const StoredKey& key, const Block& block) {
    return key.time != block.firstTime ? key.time < block.firstTime : key.sequence < block.firstSequence;
}

void KeyBlocks::unpack(const Block& block, std::vector<StoredKey>& keys) {
    for (std::size_t place = 0; place < block.count; ++place)
        keys.push_back({block.time(place), block.sequence(place), block.id(place)});
}

// At the end blocks are filled, since what comes next comes behind them; in the middle they keep room, so
// that a block is not split for each key that comes into it.
void KeyBlocks::append(const std::vector<StoredKey>& keys, bool isEnd) {
    const std::size_t pieces = (keys.size() + blockSize - 1) / blockSize;
    for (std::size_t done = 0, piece = 0; piece < pieces; ++piece) {
        const std::size_t end =
            isEnd ? std::min(keys.size(), done + blockSize) : keys.size() * (piece + 1) / pieces;
        blocks.emplace_back(keys.data() + done, end - done);
        done = end;
    }
    count += keys.size();
}

void KeyBlocks::add(std::vector<StoredKey> keys) {
    if (keys.empty())
        return;
    std::stable_sort(keys.begin(), keys.end(), isOlder);
    keepLastOfEach(keys);
    // All blocks from the first on that takes a key are put together anew; most often it is the last one.
    auto first = std::upper_bound(blocks.begin(), blocks.end(), keys.front(), isBefore);
    if (first != blocks.begin())
        --first;
    std::vector<Block> rest(std::make_move_iterator(first), std::make_move_iterator(blocks.end()));
    blocks.erase(first, blocks.end());
    std::vector<StoredKey> before;
    std::vector<StoredKey> merged;
    auto next = keys.cbegin();
    for (auto block = rest.begin(); block != rest.end() || next != keys.cend();) {
        const bool isEnd = block == rest.end() || block + 1 == rest.end();
        const auto end = isEnd ? keys.cend() : std::find_if(next, keys.cend(), [&](const StoredKey& key) {
            return !isBefore(key, *(block + 1));
        });
        if (next == end) {
            blocks.push_back(std::move(*block++));
            continue;
        }
        before.clear();
        if (block != rest.end()) {
            unpack(*block, before);
            count -= block->count;
            ++block;
        }
        merged.clear();
        std::merge(before.begin(), before.end(), next, end, std::back_inserter(merged), isOlder);
        keepLastOfEach(merged);
        append(merged, isEnd);
        next = end;
    }
}

}  // namespace wirepane
