// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/database/statement.h"
#include "backend/store/arrival_log.h"
#include "backend/store/news_writer.h"
#include "backend/store/retention.h"

#include <cstdint>
#include <optional>

namespace wirepane {

// Lets old news leave a store, oldest first within a service, in small steps of one transaction each. News
// leaves with all that belongs to it, and its key as one that is gone. The moment before which news leaves,
// the horizon, is kept in the store: what is older does not come in again, also when the steps end halfway.
// Thread: that of the database, which must outlive this, as must the others.
class NewsTrimmer {
public:
    NewsTrimmer(Database& database, NewsWriter& news, ArrivalLog& arrivals);

    // The horizon, in seconds since 1970; nothing when there is none. Inside a transaction, as step().
    std::optional<std::int64_t> horizon();
    // Takes news of any age again. False on failure, which the database then holds, as of all that follow.
    bool lift();
    // Removes a few hundred headlines, or moves the horizon on, or puts a piece of the index together.
    // Nothing on failure. When a run is done the size of the store is measured anew by the next one.
    std::optional<TrimStep> step(const Retention& keep, std::int64_t now);

private:
    // The first id that an import hides; nothing: none.
    std::optional<std::int64_t> firstHidden();
    std::optional<int> removeOlder(std::int64_t horizon);
    bool raise(std::int64_t horizon, bool isCompacting);
    // The time before which a share of the news lies, by a sample of it.
    std::optional<std::int64_t> timeOfShare(double share);
    // Puts a piece of the search index together; false: nothing is left to do, or on failure.
    bool compact();
    double bytesInUse();

    Database& store;
    NewsWriter& writer;
    ArrivalLog& log;
    Statement readHorizon;
    Statement writeHorizon;
    Statement services;
    Statement readHidden;
    Statement oldest;
    Statement nextTime;
    Statement merge;
    bool isMerging = false;
    bool isMeasured = false;  // in this run
};

}  // namespace wirepane
