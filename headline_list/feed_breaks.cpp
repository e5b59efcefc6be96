// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/feed_breaks.h"

#include <algorithm>

void FeedBreaks::vLost(std::int64_t now) {
    if (!since)
        since = now;
}

void FeedBreaks::vRestored(std::int64_t now) {
    if (since)
        past.push_back({*since, now});
    since.reset();
}

bool FeedBreaks::bHolds(std::int64_t time) const {
    return (since && time >= *since) || std::any_of(past.begin(), past.end(), [time](const Break& cut) {
               return time >= cut.from && time < cut.to;
           });
}
