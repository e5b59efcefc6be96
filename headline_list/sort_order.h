// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <cstddef>
#include <vector>

// The order of every headline table: newest first by time, then by sequence number, then by the two opaque
// values, all descending.
bool NewerFirst(const CHeadlineTable& a, const CHeadlineTable& b);

// The tables of several services one behind the other.
struct TableRuns {
    std::vector<CHeadlineTable> entries;
    std::vector<std::size_t> ends;  // where each run ends in `entries`, ascending

    // What stands behind the last end becomes a run.
    void EndRun() { ends.push_back(entries.size()); }
};

// All entries newest first; equal entries keep their order (what a stable sort of `entries` gives). Runs that
// are in order already are only merged.
std::vector<CHeadlineTable> SortedNewestFirst(TableRuns runs);
