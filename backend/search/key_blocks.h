// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/id_set.h"
#include "host/contract/records.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace wirepane {

// The key of a headline within its service, and its id.
struct StoredKey {
    std::int64_t time;
    std::int32_t sequence;
    std::uint32_t id;
};

// The keys of a service, ordered by time and sequence. They stand in blocks of 256, in which each field takes
// as many bits as its span asks for: 4 to 7 bytes a key instead of 16. A set of ids passes over the blocks
// that hold none of them.
class KeyBlocks {
public:
    KeyBlocks() = default;
    // Those of entries, newest first, without their ids.
    explicit KeyBlocks(const std::vector<CHeadlineTable>& newestFirst);

    // Adds keys, in any order. One that is there gets the id that comes with it.
    void add(std::vector<StoredKey> keys);
    // The entries whose ids are in the set, newest first.
    std::vector<CHeadlineTable> entriesOf(const IdSet& ids, unsigned char service) const;
    // The same, packed, without their ids.
    KeyBlocks only(const IdSet& ids) const;
    // Appends all entries, newest first.
    void appendTo(std::vector<CHeadlineTable>& entries, unsigned char service) const;
    bool hold(const HeadlineKey& key) const;
    std::size_t size() const { return count; }

private:
    struct Block {
        explicit Block(const StoredKey* keys, std::size_t count);

        // Writes the places whose ids are in the set, oldest first, where there is room for one more than
        // that of all keys; returns the end.
        std::uint16_t* placesOf(const IdSet& ids, std::uint16_t* places) const;
        std::uint32_t id(std::size_t place) const {
            return leastId + static_cast<std::uint32_t>(field(place * idBits, idBits));
        }
        std::int64_t time(std::size_t place) const {
            return firstTime + static_cast<std::int64_t>(field(timesAt + place * timeBits, timeBits));
        }
        std::int32_t sequence(std::size_t place) const {
            return static_cast<std::int32_t>(
                leastSequence +
                static_cast<std::int64_t>(field(sequencesAt + place * sequenceBits, sequenceBits)));
        }
        std::uint64_t field(std::size_t bit, unsigned width) const {
            const std::uint64_t* const word = words.get() + bit / 64;
            const unsigned shift = bit % 64;
            const std::uint64_t value = word[0] >> shift | word[1] << 1 << (63 - shift);
            return width == 64 ? value : value & ((std::uint64_t(1) << width) - 1);
        }
        void pack(std::size_t bit, unsigned width, std::uint64_t value);

        std::int64_t firstTime;
        std::int32_t firstSequence;
        std::int32_t leastSequence;
        std::uint32_t leastId;
        std::uint32_t lastId;
        std::uint32_t timesAt;  // bits
        std::uint32_t sequencesAt;
        std::uint16_t count;
        std::uint8_t timeBits;
        std::uint8_t sequenceBits;
        std::uint8_t idBits;
        std::unique_ptr<std::uint64_t[]>
            words;  // one more than is filled, so that a field can be read at once
    };

    static bool isBefore(const StoredKey& key, const Block& block);
    static void unpack(const Block& block, std::vector<StoredKey>& keys);
    // Packs ordered keys behind all others; `isEnd`: nothing will stand behind them.
    void append(const std::vector<StoredKey>& keys, bool isEnd);

    std::vector<Block> blocks;
    std::size_t count = 0;
};

}  // namespace wirepane
