// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/headline_rows.h"
#include "host/contract/records.h"

#include <vector>

namespace wirepane {

// The order of every headline table: newest first by time, then by sequence number, then by the two opaque
// values, all descending.
inline bool newerFirst(const CHeadlineTable& a, const CHeadlineTable& b) {
    if (a.time != b.time)
        return a.time > b.time;
    if (a.sequence != b.sequence)
        return a.sequence > b.sequence;
    return a.second != b.second ? a.second > b.second : a.last > b.last;
}

// The tables of several services, one behind the other.
using TableRuns = std::vector<std::vector<CHeadlineTable>>;

// All entries newest first; equal entries keep their order (what a stable sort of all runs, one behind the
// other, gives). Runs that are in order already are only merged.
HeadlineRows sortedNewestFirst(const TableRuns& runs);

}  // namespace wirepane
