// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "host/contract/records.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace wirepane {

// One change of the store's news that views are to hear of.
struct Arrival {
    HeadlineKey key;         // where the news stands now, or stood when `isGone`
    bool onlyStory = false;  // only the story that was missing has come
    bool isGone = false;     // news that was replaced no longer has this key
    std::int64_t position = 0;
};

// The order in which news came into a store, whoever wrote it: every headline that is new or replaced and
// every story that was missing takes the next position. The log keeps the newest positions and lets the
// oldest go. Thread: that of the database, which must outlive the log.
class ArrivalLog {
public:
    explicit ArrivalLog(Database& database, std::int64_t mostArrivals = 1'000'000);

    // Inside a transaction. `gone`: the key that the headline had before, when it has another one now. False
    // on failure, which the database then holds.
    bool add(std::int64_t headlineId, bool onlyStory, const std::optional<HeadlineKey>& gone = {});
    // Lets go what is too old.
    bool trim();

    // The position of the last arrival; 0: none yet. Nothing on failure.
    std::optional<std::int64_t> last();
    // What came after `position` and up to `last`, in its order; `position` moves to the last of it. News
    // that was replaced again meanwhile stands at its last place only, each key that it lost behind the news
    // that replaced it.
    std::vector<Arrival> after(std::int64_t& position,
                               std::int64_t last = std::numeric_limits<std::int64_t>::max());

private:
    Statement insert;
    Statement insertReplaced;
    Statement remove;
    Statement newest;
    Statement later;
    std::int64_t most;
};

}  // namespace wirepane
