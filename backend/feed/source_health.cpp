// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/source_health.h"

#include "backend/feed/feed_name.h"
#include "backend/feed/live_feed.h"

#include <QDir>

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

std::vector<SourceReport> withOtherEnds(std::vector<SourceReport> sources, const QString& storePath) {
    std::erase_if(sources, [store = QDir::toNativeSeparators(storePath)](const SourceReport& source) {
        return source.name == store || source.name == defaultFeedName;
    });
    return sources;
}

std::vector<QuietSource> quietAmong(const std::vector<SourceReport>& sources) {
    const bool isAllStale = healthOf(sources) == SourceHealth::Stale;
    std::vector<QuietSource> quiet;
    for (const SourceReport& source : sources) {
        const SourceHealth health = healthOf(source.state);
        if (health == SourceHealth::Silent || (health == SourceHealth::Stale && isAllStale))
            quiet.push_back({source.title, health == SourceHealth::Stale, source.state.since});
    }
    return quiet;
}

bool isFaulty(SourceHealth health) {
    return health == SourceHealth::Silent || health == SourceHealth::Failed;
}

}  // namespace wirepane
