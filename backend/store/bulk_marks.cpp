// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/bulk_marks.h"

#include <algorithm>
#include <utility>

namespace wirepane {

void BulkMarks::add(std::vector<HeadlineKey> keys, const MarkChange& change, std::int64_t moment,
                    std::int64_t heard) {
    if (!keys.empty())
        lists.push_back({std::move(keys), {{}, change, moment, heard}, 0, {}});
}

void BulkMarks::overtake(const std::vector<HeadlineKey>& keys, const MarkChange& change) {
    for (List& list : lists) {
        for (const HeadlineKey& key : keys)
            list.later[{key}] = joined(list.later.value({key}), change);
    }
}

std::vector<DueMark> BulkMarks::next(std::size_t most) {
    std::vector<DueMark> due;
    if (lists.empty())
        return due;
    List& list = lists.front();
    const std::size_t end = std::min(list.handedOut + most, list.keys.size());
    due.reserve(end - list.handedOut);
    for (; list.handedOut < end; ++list.handedOut) {
        DueMark mark = list.like;
        mark.key = list.keys[list.handedOut];
        mark.change = joined(mark.change, list.later.value({mark.key}));
        due.push_back(mark);
    }
    if (end == list.keys.size())
        lists.pop_front();
    return due;
}

}  // namespace wirepane
