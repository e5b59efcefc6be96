// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/sort_order.h"

#include <algorithm>
#include <tuple>

namespace {

bool everyRunIsSorted(const TableRuns& runs) {
    std::size_t from = 0;
    for (const std::size_t end : runs.ends) {
        const auto begin = runs.entries.begin();
        if (!std::is_sorted(begin + from, begin + end, NewerFirst))
            return false;
        from = end;
    }
    return true;
}

// Merges neighbouring runs in pairs from `runs` into `merged`.
void mergePairs(const TableRuns& runs, TableRuns& merged) {
    merged.entries.resize(runs.entries.size());
    merged.ends.clear();
    const auto begin = runs.entries.begin();
    std::size_t from = 0;
    for (std::size_t i = 0; i < runs.ends.size(); i += 2) {
        const std::size_t middle = runs.ends[i];
        const std::size_t end = i + 1 < runs.ends.size() ? runs.ends[i + 1] : middle;
        std::merge(begin + from, begin + middle, begin + middle, begin + end, merged.entries.begin() + from,
                   NewerFirst);
        merged.ends.push_back(end);
        from = end;
    }
}

}  // namespace

bool NewerFirst(const CHeadlineTable& a, const CHeadlineTable& b) {
    return std::tie(a.time, a.sequence, a.second, a.last) > std::tie(b.time, b.sequence, b.second, b.last);
}

std::vector<CHeadlineTable> SortedNewestFirst(TableRuns runs) {
    if (runs.ends.empty() || runs.ends.back() != runs.entries.size())
        runs.EndRun();
    if (!everyRunIsSorted(runs)) {
        std::stable_sort(runs.entries.begin(), runs.entries.end(), NewerFirst);
        return std::move(runs.entries);
    }
    TableRuns merged;
    while (runs.ends.size() > 1) {
        mergePairs(runs, merged);
        std::swap(runs, merged);
    }
    return std::move(runs.entries);
}
