// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/sort_order.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <numeric>
#include <span>

namespace wirepane {

namespace {

// Hands out the entries of sorted runs in their common order: a knock-out tournament between the heads of the
// runs, so that every entry is moved once and meets as few others as there are rounds. Who won goes on to the
// next round; who lost stays and meets the next winner.
class RunTournament {
public:
    explicit RunTournament(const TableRuns& runs)
        : heads(std::bit_ceil(std::max<std::size_t>(runs.size(), 1))), losers(heads.size()) {
        for (std::size_t run = 0; run < runs.size(); ++run)
            heads[run] = Head(runs[run]);
        champion = winnerBelow(1);
    }

    // As often as there are entries.
    const CHeadlineTable& take() {
        const CHeadlineTable& entry = heads[champion].takeFirst();
        for (std::size_t node = (heads.size() + champion) / 2; node >= 1; node /= 2) {
            const std::size_t met = losers[node];
            const bool loses = isBefore(met, champion);
            losers[node] = loses ? champion : met;
            champion = loses ? met : champion;
        }
        return entry;
    }

private:
    // What is left of a run, and beside it what most comparisons need.
    struct Head {
        Head() = default;
        explicit Head(std::span<const CHeadlineTable> run) : left(run) { readFirst(); }

        const CHeadlineTable& takeFirst() {
            const CHeadlineTable& first = left.front();
            left = left.subspan(1);
            readFirst();
            return first;
        }
        void readFirst() {
            time = left.empty() ? std::numeric_limits<std::int64_t>::min() : left.front().time;
            sequence = left.empty() ? std::numeric_limits<std::int32_t>::min() : left.front().sequence;
        }

        std::int64_t time = std::numeric_limits<std::int64_t>::min();
        std::int32_t sequence = std::numeric_limits<std::int32_t>::min();
        std::span<const CHeadlineTable> left;
    };

    // Without a branch for the fields of which nobody can foresee which is the later.
    bool isBefore(std::size_t run, std::size_t other) const {
        const Head& a = heads[run];
        const Head& b = heads[other];
        const bool sameTime = a.time == b.time;
        if (sameTime && a.sequence == b.sequence) [[unlikely]]
            return winsTie(run, other);
        return bool(int(a.time > b.time) | (int(sameTime) & int(a.sequence > b.sequence)));
    }
    // Of equal entries the one of the earlier run wins.
    bool winsTie(std::size_t run, std::size_t other) const {
        const std::span<const CHeadlineTable> a = heads[run].left;
        const std::span<const CHeadlineTable> b = heads[other].left;
        if (a.empty() || b.empty())
            return !a.empty();
        return run < other ? !newerFirst(b.front(), a.front()) : newerFirst(a.front(), b.front());
    }

    // Plays all rounds below a node; its loser stays there.
    std::size_t winnerBelow(std::size_t node) {
        if (node >= heads.size())
            return node - heads.size();
        const std::size_t first = winnerBelow(2 * node);
        const std::size_t second = winnerBelow(2 * node + 1);
        const bool firstWins = isBefore(first, second);
        losers[node] = firstWins ? second : first;
        return firstWins ? first : second;
    }

    std::vector<Head> heads;
    std::vector<std::size_t> losers;  // by node: 1 is the final, its children are 2 and 3, and so on
    std::size_t champion = 0;
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
