// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/outages.h"

#include <algorithm>

namespace wirepane {

void Outages::lost(std::int64_t now) {
    if (!since)
        since = now;
}

void Outages::restored(std::int64_t now) {
    if (since)
        past.push_back({*since, now});
    since.reset();
}

bool Outages::holds(std::int64_t time) const {
    return (since && time >= *since) || std::any_of(past.begin(), past.end(), [time](const Outage& outage) {
               return time >= outage.from && time < outage.to;
           });
}

}  // namespace wirepane
