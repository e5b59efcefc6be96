// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/reading_marks.h"
#include "host/contract/records.h"

#include <QHash>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

namespace wirepane {

struct MarkedKey {
    HeadlineKey headline;

    bool operator==(const MarkedKey&) const = default;
    friend std::size_t qHash(const MarkedKey& key, std::size_t seed) {
        return qHashMulti(seed, key.headline.time, key.headline.sequence, key.headline.service);
    }
};

// One mark that is to be changed, as of a moment, by somebody who had heard of the arrivals up to `heard`.
struct DueMark {
    HeadlineKey key;
    MarkChange change;
    std::int64_t moment = 0;
    std::int64_t heard = 0;
};

// Marks of whole lists that are to be changed: a million keys are moved in and handed out a portion at a
// time, in the order given. What was changed later by itself is not undone by what waits here. A value.
class BulkMarks {
public:
    bool empty() const { return lists.empty(); }
    void add(std::vector<HeadlineKey> keys, const MarkChange& change, std::int64_t moment,
             std::int64_t heard);
    // These marks were changed now, behind everything that waits.
    void overtake(const std::vector<HeadlineKey>& keys, const MarkChange& change);
    // Up to `most` of the first list.
    std::vector<DueMark> next(std::size_t most);

private:
    struct List {
        std::vector<HeadlineKey> keys;
        DueMark like;  // what holds for each of them
        std::size_t handedOut = 0;
        QHash<MarkedKey, MarkChange> later;  // few: what a hand marks while the list waits
    };
    std::deque<List> lists;
};

}  // namespace wirepane
