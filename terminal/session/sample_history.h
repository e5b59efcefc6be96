// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"
#include "backend/result.h"
#include "sample_wire/sample_options.h"

#include <functional>
#include <memory>

namespace wirepane {
class Database;

// A store that is to show the sample wire has the present day when its window opens; the days before that it
// lacks are kept in it as a position, and come behind the window, the newest first.

// Invented and real news never mix by themselves: whether the store has none of its user's sources, and no
// news but the wire's.
bool mayShowSample(Database& store);

// Takes in what the store lacks of the present day, where it lacks more than a part of it, all of it or
// nothing, and keeps which days before it are lacking: of the last options.days those since it was followed
// last. What lacks less, or is under way in another terminal, stays as it is. `progress` as of
// fillWithSample().
Done bringSampleUpToDate(Database& store, const SampleOptions& options,
                         const std::function<bool(std::int64_t items)>& progress = {});

// The days that are lacking, as a source, which ends with the oldest of them. Of the options: seed, now,
// headlinesPerDay.
std::shared_ptr<FeedSource> sampleHistory(const SampleOptions& options);

}  // namespace wirepane
