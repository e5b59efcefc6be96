// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/source_health.h"

#include "backend/feed/live_feed.h"

#include <algorithm>

namespace wirepane {

SourceHealth healthOf(const SourceState& state) {
    switch (state.kind) {
        case SourceState::Live:
            return SourceHealth::Good;
        case SourceState::Stale:
            return SourceHealth::Stale;
        case SourceState::Connecting:
            return SourceHealth::Connecting;
        case SourceState::Offline:
            return SourceHealth::Offline;
        case SourceState::Silent:
            return SourceHealth::Silent;
        case SourceState::Failed:
            break;
    }
    return SourceHealth::Failed;
}

SourceHealth healthOf(const std::vector<SourceReport>& sources) {
    SourceHealth best = SourceHealth::None;
    for (const SourceReport& source : sources)
        best = std::min(best, healthOf(source.state));
    return best;
}

bool isFaulty(SourceHealth health) {
    return health == SourceHealth::Silent || health == SourceHealth::Failed;
}

}  // namespace wirepane
