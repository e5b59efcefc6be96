// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/headline_rows.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

namespace wirepane {

// Finds the first row that is the same as a given entry, where Identity says what "the same" means: it has
// hash(entry) and same(entry, entry).
//
// It holds the rows' tickets only, about six bytes a row; the rows are handed in at every call. The table
// grows a segment at a time: no row pays for the whole.
template <class Identity>
class RowIndex {
public:
    void rebuild(const HeadlineRows& rows);
    void clear() { *this = RowIndex(); }

    struct Found {
        int row = -1;          // the first row that is the same; -1: there is none
        bool hasMore = false;  // rows further down may be the same
    };
    Found find(const HeadlineRows& rows, const CHeadlineTable& entry) const;

    // A row has just been put in.
    void inserted(const HeadlineRows& rows, int row);
    // A row is about to be taken out.
    void removing(const HeadlineRows& rows, int row);

private:
    // A slot is 0 when it is free; else ticket + 1, five bits of the row's hash, which spare most looks at
    // rows that are not the same, and in the lowest bit: rows further down may be the same. Room for 67
    // million rows.
    using Slot = std::uint32_t;
    static constexpr int ticketShift = 6;
    using Ticket = HeadlineRows::Ticket;
    static constexpr Slot tagMask = 0x1F;
    struct Segment {
        std::vector<Slot> held;  // at most three quarters full
        std::uint32_t used = 0;
        int depth = 0;  // how many leading bits of the hash its rows share
    };
    static constexpr std::uint32_t fullSegment = 512;
    static constexpr std::uint32_t freshSegment = 300;
    static constexpr int deepest = 24;

    static Slot tagOf(std::uint64_t hash) { return static_cast<Slot>(hash) & tagMask; }
    static Slot slotFor(Ticket ticket, std::uint64_t hash, bool shared) {
        return ((static_cast<Slot>(ticket) + 1) << ticketShift) | (tagOf(hash) << 1) | (shared ? 1U : 0U);
    }
    static Ticket ticketIn(Slot slot) { return Ticket((slot >> ticketShift) - 1); }
    static bool hasTag(Slot slot, std::uint64_t hash) { return ((slot >> 1) & tagMask) == tagOf(hash); }
    static bool isShared(Slot slot) { return (slot & 1U) != 0; }
    std::uint64_t hashIn(const HeadlineRows& rows, Slot slot) const {
        return identity.hash(rows.entryOf(ticketIn(slot)));
    }

    std::size_t leadingBits(std::uint64_t hash) const { return depth == 0 ? 0 : hash >> (64 - depth); }
    static std::size_t home(const Segment& segment, std::uint64_t hash) {
        return static_cast<std::size_t>(((hash & 0xFFFFFFFFU) * segment.held.size()) >> 32);
    }
    static std::size_t next(const Segment& segment, std::size_t i) {
        return i + 1 == segment.held.size() ? 0 : i + 1;
    }
    // The slot that is wanted, or the free one where it would stand.
    template <class Wanted>
    static std::size_t seek(const Segment& segment, std::uint64_t hash, Wanted wanted) {
        std::size_t i = home(segment, hash);
        while (segment.held[i] != 0 && !wanted(segment.held[i]))
            i = next(segment, i);
        return i;
    }

    std::size_t seekSame(const HeadlineRows& rows, const Segment& segment, std::uint64_t hash,
                         const CHeadlineTable& entry) const {
        return seek(segment, hash, [&](Slot candidate) {
            return hasTag(candidate, hash) && identity.same(rows.entryOf(ticketIn(candidate)), entry);
        });
    }

    struct HashedRow {
        std::uint64_t hash;
        Ticket ticket;
    };
    void fillFresh(const HeadlineRows& rows, Segment& segment, std::span<const HashedRow> content);
    void takeOut(const HeadlineRows& rows, Segment& segment, std::size_t i);
    Segment& segmentWithRoom(const HeadlineRows& rows, std::uint64_t hash);
    void refill(const HeadlineRows& rows, Segment& segment, std::size_t slotCount,
                const std::vector<Slot>& content) const;
    void split(const HeadlineRows& rows, std::size_t number);

    Identity identity;
    std::vector<std::uint32_t> directory;  // by the `depth` leading bits of the hash: the segment's number
    std::vector<Segment> segments;
    int depth = 0;
};

template <class Identity>
void RowIndex<Identity>::rebuild(const HeadlineRows& rows) {
    clear();
    const auto rowCount = static_cast<std::size_t>(rows.size());
    while ((rowCount >> depth) > freshSegment)
        ++depth;
    segments.resize(std::size_t(1) << depth);
    std::vector<HashedRow> hashed;
    hashed.reserve(rowCount);
    std::vector<std::size_t> ends(segments.size() + 1, 0);
    rows.forEach([&](Ticket ticket, const CHeadlineTable& entry) {
        hashed.push_back({identity.hash(entry), ticket});
        ++ends[leadingBits(hashed.back().hash) + 1];
    });
    for (std::size_t number = 1; number < ends.size(); ++number)
        ends[number] += ends[number - 1];
    // The rows by segment: one segment's slots and hashes stay in the processor's cache while they are
    // filled.
    std::vector<HashedRow> ordered(rowCount);
    std::vector<std::size_t> places = ends;
    for (const HashedRow& row : hashed)
        ordered[places[leadingBits(row.hash)]++] = row;
    for (std::size_t number = 0; number < segments.size(); ++number) {
        directory.push_back(static_cast<std::uint32_t>(number));
        segments[number].depth = depth;
        fillFresh(rows, segments[number],
                  std::span(ordered).subspan(ends[number], ends[number + 1] - ends[number]));
    }
}

// `content`: newest first.
template <class Identity>
void RowIndex<Identity>::fillFresh(const HeadlineRows& rows, Segment& segment,
                                   std::span<const HashedRow> content) {
    // Half full: what is pushed next finds room, and few rows to compare with.
    segment.held.assign(content.size() * 2 + 8, 0);
    std::vector<std::uint64_t> standing(segment.held.size());
    for (const HashedRow& row : content) {
        std::size_t i = home(segment, row.hash);
        while (segment.held[i] != 0 &&
               (standing[i] != row.hash ||
                !identity.same(rows.entryOf(ticketIn(segment.held[i])), rows.entryOf(row.ticket))))
            i = next(segment, i);
        if (segment.held[i] != 0) {
            segment.held[i] |= 1U;
            continue;
        }
        segment.held[i] = slotFor(row.ticket, row.hash, false);
        standing[i] = row.hash;
        ++segment.used;
    }
}

template <class Identity>
typename RowIndex<Identity>::Found RowIndex<Identity>::find(const HeadlineRows& rows,
                                                            const CHeadlineTable& entry) const {
    if (segments.empty())
        return {};
    const std::uint64_t hash = identity.hash(entry);
    const Segment& segment = segments[directory[leadingBits(hash)]];
    const Slot slot = segment.held[seekSame(rows, segment, hash, entry)];
    return slot == 0 ? Found() : Found{rows.rowOf(ticketIn(slot)), isShared(slot)};
}

// Rows that are the same as one above them are not held; a slot for them is marked as shared.
template <class Identity>
void RowIndex<Identity>::inserted(const HeadlineRows& rows, int row) {
    if (segments.empty()) {
        rebuild(rows);
        return;
    }
    const CHeadlineTable& entry = rows.at(row);
    const std::uint64_t hash = identity.hash(entry);
    Segment& segment = segmentWithRoom(rows, hash);
    Slot& slot = segment.held[seekSame(rows, segment, hash, entry)];
    if (slot == 0)
        ++segment.used;
    const bool isFirst = slot == 0 || row < rows.rowOf(ticketIn(slot));
    slot = slotFor(isFirst ? rows.ticketOf(row) : ticketIn(slot), hash, slot != 0);
}

template <class Identity>
void RowIndex<Identity>::removing(const HeadlineRows& rows, int row) {
    const CHeadlineTable& entry = rows.at(row);
    const std::uint64_t hash = identity.hash(entry);
    Segment& segment = segments[directory[leadingBits(hash)]];
    const Ticket ticket = rows.ticketOf(row);
    const std::size_t i = seek(segment, hash, [&](Slot slot) { return ticketIn(slot) == ticket; });
    if (segment.held[i] == 0)
        return;
    const int heir = !isShared(segment.held[i])
                         ? -1
                         : rows.firstWithin(row + 1, rows.size(), [&](const CHeadlineTable& candidate) {
                               return identity.same(candidate, entry);
                           });
    if (heir < 0)
        takeOut(rows, segment, i);
    else
        segment.held[i] = slotFor(rows.ticketOf(heir), hash, true);
}

// Closes the gap, so that every other slot is still found from its home.
template <class Identity>
void RowIndex<Identity>::takeOut(const HeadlineRows& rows, Segment& segment, std::size_t i) {
    const auto distance = [&](std::size_t from, std::size_t to) {
        return to >= from ? to - from : to + segment.held.size() - from;
    };
    for (std::size_t j = next(segment, i); segment.held[j] != 0; j = next(segment, j)) {
        if (distance(home(segment, hashIn(rows, segment.held[j])), j) < distance(i, j))
            continue;
        segment.held[i] = segment.held[j];
        i = j;
    }
    segment.held[i] = 0;
    --segment.used;
}

template <class Identity>
typename RowIndex<Identity>::Segment& RowIndex<Identity>::segmentWithRoom(const HeadlineRows& rows,
                                                                          std::uint64_t hash) {
    while (true) {
        const std::size_t number = directory[leadingBits(hash)];
        Segment& segment = segments[number];
        if ((segment.used + 1) * 4 <= segment.held.size() * 3)
            return segment;
        if (segment.used < fullSegment || segment.depth == deepest)
            refill(rows, segment, segment.held.size() * 5 / 4 + 8, std::vector<Slot>(segment.held));
        else
            split(rows, number);
    }
}

template <class Identity>
void RowIndex<Identity>::refill(const HeadlineRows& rows, Segment& segment, std::size_t slotCount,
                                const std::vector<Slot>& content) const {
    segment.held = std::vector<Slot>(slotCount, 0);
    segment.used = 0;
    for (const Slot slot : content) {
        if (slot == 0)
            continue;
        segment.held[seek(segment, hashIn(rows, slot), [](Slot) { return false; })] = slot;
        ++segment.used;
    }
}

template <class Identity>
void RowIndex<Identity>::split(const HeadlineRows& rows, std::size_t number) {
    if (segments[number].depth == depth) {
        std::vector<std::uint32_t> twice;
        twice.reserve(directory.size() * 2);
        for (const std::uint32_t entry : directory)
            twice.insert(twice.end(), 2, entry);
        directory = std::move(twice);
        ++depth;
    }
    const int halfDepth = segments[number].depth + 1;
    std::vector<Slot> halves[2];
    for (const Slot slot : segments[number].held) {
        if (slot != 0)
            halves[(hashIn(rows, slot) >> (64 - halfDepth)) & 1U].push_back(slot);
    }
    for (std::size_t i = 0; i < directory.size(); ++i) {
        if (directory[i] == number && ((i >> (depth - halfDepth)) & 1U) != 0)
            directory[i] = static_cast<std::uint32_t>(segments.size());
    }
    segments.emplace_back();
    for (const int half : {0, 1}) {
        Segment& segment = half == 0 ? segments[number] : segments.back();
        segment.depth = halfDepth;
        refill(rows, segment, halves[half].size() * 3 / 2 + 8, halves[half]);
    }
}

}  // namespace wirepane
