// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/sort_order.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <span>

namespace wirepane {

namespace {

// Hands out the entries of sorted runs in their common order: a knock-out tournament between the heads of the
// runs, so that every entry is moved once and meets as few others as there are rounds.
class RunTournament {
public:
    explicit RunTournament(const TableRuns& runs)
        : heads(runs.begin(), runs.end()), leaves(std::bit_ceil(std::max<std::size_t>(runs.size(), 1))) {
        heads.resize(leaves);
        winners.resize(2 * leaves);
        for (std::size_t run = 0; run < leaves; ++run)
            winners[leaves + run] = run;
        for (std::size_t node = leaves; node-- > 1;)
            play(node);
    }

    // As often as there are entries.
    const CHeadlineTable& take() {
        std::span<const CHeadlineTable>& head = heads[winners[1]];
        const CHeadlineTable& entry = head.front();
        head = head.subspan(1);
        for (std::size_t node = (leaves + winners[1]) / 2; node >= 1; node /= 2)
            play(node);
        return entry;
    }

private:
    // Of equal entries the one of the earlier run wins.
    void play(std::size_t node) {
        const std::size_t earlier = winners[2 * node];
        const std::size_t later = winners[2 * node + 1];
        const bool laterWins =
            !heads[later].empty() &&
            (heads[earlier].empty() || newerFirst(heads[later].front(), heads[earlier].front()));
        winners[node] = laterWins ? later : earlier;
    }

    std::vector<std::span<const CHeadlineTable>> heads;  // what is left of each run
    std::size_t leaves;
    std::vector<std::size_t> winners;  // by node: 1 is the final, its children are 2 and 3, and so on
};

HeadlineRows sortedWhole(const TableRuns& runs) {
    std::vector<CHeadlineTable> entries;
    for (const std::vector<CHeadlineTable>& run : runs)
        entries.insert(entries.end(), run.begin(), run.end());
    std::stable_sort(entries.begin(), entries.end(), newerFirst);
    return {static_cast<int>(entries.size()), [entry = entries.begin()]() mutable { return *entry++; }};
}

}  // namespace

HeadlineRows sortedNewestFirst(const TableRuns& runs) {
    const auto isSorted = [](const std::vector<CHeadlineTable>& run) {
        return std::is_sorted(run.begin(), run.end(), newerFirst);
    };
    if (!std::all_of(runs.begin(), runs.end(), isSorted))
        return sortedWhole(runs);
    const auto count = std::accumulate(
        runs.begin(), runs.end(), std::size_t(0),
        [](std::size_t sum, const std::vector<CHeadlineTable>& run) { return sum + run.size(); });
    RunTournament tournament(runs);
    return {static_cast<int>(count), [&] { return tournament.take(); }};
}

}  // namespace wirepane
