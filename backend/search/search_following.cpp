// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_following.h"

#include <QHashFunctions>

#include <algorithm>
#include <utility>

namespace wirepane {

std::size_t SearchFollowing::Hash::operator()(const HeadlineKey& key) const noexcept {
    return qHashMulti(0, key.time, key.sequence, key.service);
}

SearchFollowing::SearchFollowing(Database& database, CSearch condition)
    : wanted(std::move(condition)), search(database), version(database) {}

bool SearchFollowing::isDue(std::int64_t latest) {
    return version.hasChanged() || (nextLater && *nextLater <= latest);
}

std::optional<std::vector<CHeadlineTable>> SearchFollowing::look(const std::vector<unsigned char>& services,
                                                                 std::int64_t latest) {
    std::vector<CHeadlineTable> fresh;
    nextLater.reset();
    for (const unsigned char service : services) {
        const auto found = search.find(service, wanted);
        if (!found)
            return std::nullopt;
        for (const CHeadlineTable& entry : *found) {
            if (entry.time > latest)
                nextLater = std::min(nextLater.value_or(entry.time), entry.time);
            else if (given.insert(keyOf(entry)).second)
                fresh.push_back(entry);
        }
    }
    std::stable_sort(fresh.begin(), fresh.end(), [](const CHeadlineTable& a, const CHeadlineTable& b) {
        return a.time != b.time ? a.time < b.time : a.sequence < b.sequence;
    });
    return fresh;
}

}  // namespace wirepane
