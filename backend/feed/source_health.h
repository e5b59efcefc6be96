// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"
#include "host/contract/quiet_sources.h"

#include <vector>

namespace wirepane {
struct SourceReport;

// What a reader has to know of how sources stand, the best first: whoever shows it or warns of it asks here.
enum class SourceHealth {
    Good,
    Stale,       // there, but nothing has come for longer than is usual
    Connecting,  // not there yet
    Offline,     // the other end is gone
    Silent,      // no sign of life
    Failed,      // it cannot go on as it is
    None         // there is no source
};

SourceHealth healthOf(const SourceState& state);
// Of all together: that of the one that stands best, since one that is there brings news.
SourceHealth healthOf(const std::vector<SourceReport>& sources);
// Without the store itself, and the socket that a terminal only listens at: who sends there is a source of
// its own.
std::vector<SourceReport> withOtherEnds(std::vector<SourceReport> sources, const QString& storePath);
// Those from which nothing comes though something should, as QuietSources tells them.
std::vector<QuietSource> quietAmong(const std::vector<SourceReport>& sources);
// Whether the user has to do or know something.
bool isFaulty(SourceHealth health);

}  // namespace wirepane
