// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/feed_breaks.h"

#include <algorithm>

namespace wirepane {

void FeedBreaks::lost(std::int64_t now) {
    if (!since)
        since = now;
}

void FeedBreaks::restored(std::int64_t now) {
    if (since)
        past.push_back({*since, now});
    since.reset();
}

bool FeedBreaks::holds(std::int64_t time) const {
    return (since && time >= *since) || std::any_of(past.begin(), past.end(), [time](const Break& cut) {
               return time >= cut.from && time < cut.to;
           });
}

}  // namespace wirepane
