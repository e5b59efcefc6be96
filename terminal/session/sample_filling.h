// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"
#include "sample_wire/sample_options.h"

#include <functional>

namespace wirepane {
class Database;
class StoreWriter;

struct SampleTotals {
    std::int64_t takenIn = 0;
    std::int64_t alreadyThere = 0;
    std::int64_t tooOld = 0;  // older than what the store keeps: left out
};

// Takes what the program of the sample wire sends into an open store, all of it or nothing. `progress` hears
// how many items have been seen, now and then; its false stops the taking in, of which nothing stays then.
// `isWanted` is asked within the transaction, which its positions belong to.
Result<SampleTotals> fillWithSample(Database& store, const SampleOptions& options,
                                    const std::function<bool(std::int64_t items)>& progress = {},
                                    const std::function<Result<bool>(StoreWriter&)>& isWanted = {});

}  // namespace wirepane
