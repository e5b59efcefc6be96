// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/row_runs.h"

#include <algorithm>
#include <limits>

namespace wirepane {

RowRuns::RowRuns(int count) : total(count) {
    if (count > 0)
        parts.push_back({0, count});
}

int RowRuns::oldRow(int row) const {
    for (const Run& run : parts) {
        if (row < run.count)
            return run.first == isNew ? isNew : run.first + row;
        row -= run.count;
    }
    return isNew;
}

int RowRuns::newRow(int old) const {
    int row = 0;
    for (const Run& run : parts) {
        if (run.first != isNew && old >= run.first && old < run.first + run.count)
            return row + old - run.first;
        row += run.count;
    }
    return -1;
}

std::size_t RowRuns::cutAt(int row) {
    std::size_t run = 0;
    while (run < parts.size() && row >= parts[run].count)
        row -= parts[run++].count;
    if (row == 0)
        return run;
    const Run rest{parts[run].first == isNew ? isNew : parts[run].first + row, parts[run].count - row};
    parts[run].count = row;
    parts.insert(parts.begin() + static_cast<std::ptrdiff_t>(run) + 1, rest);
    return run + 1;
}

void RowRuns::join(std::size_t run) {
    if (run == 0 || run >= parts.size())
        return;
    Run& above = parts[run - 1];
    const Run& below = parts[run];
    const bool neighbours = above.first == isNew
                                ? below.first == isNew
                                : below.first != isNew && above.first + above.count == below.first;
    if (!neighbours)
        return;
    above.count += below.count;
    parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(run));
}

void RowRuns::put(int row, int old) {
    const std::size_t run = cutAt(row);
    parts.insert(parts.begin() + static_cast<std::ptrdiff_t>(run), {old, 1});
    ++total;
    join(run + 1);
    join(run);
}

void RowRuns::remove(int row) {
    const std::size_t run = cutAt(row);
    cutAt(row + 1);
    parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(run));
    --total;
    join(run);
}

void RowRuns::moveToTop(int row) {
    const int old = oldRow(row);
    remove(row);
    put(0, old);
}

int RowRuns::shiftFrom(int old) const {
    int lowest = std::numeric_limits<int>::max();
    int row = total;
    int shift = 0;
    for (auto run = parts.rbegin(); run != parts.rend(); ++run) {
        row -= run->count;
        if (run->first == isNew || run->first > lowest)
            continue;  // new, or moved above rows that stood above it
        lowest = run->first;
        if (run->first + run->count <= old)
            break;
        shift = row - run->first;
    }
    return shift;
}

std::vector<RowRuns::Run> RowRuns::gone(int oldCount) const {
    std::vector<Run> kept;
    std::copy_if(parts.begin(), parts.end(), std::back_inserter(kept),
                 [](const Run& run) { return run.first != isNew; });
    std::sort(kept.begin(), kept.end(), [](const Run& a, const Run& b) { return a.first > b.first; });
    std::vector<Run> result;
    for (const Run& run : kept) {
        const int end = run.first + run.count;
        if (end < oldCount)
            result.push_back({end, oldCount - end});
        oldCount = run.first;
    }
    if (oldCount > 0)
        result.push_back({0, oldCount});
    return result;
}

void RowRuns::renumber(int from, int by) {
    for (Run& run : parts) {
        if (run.first != isNew && run.first >= from)
            run.first += by;
    }
}

bool RowRuns::inOrder() const {
    int end = 0;
    for (const Run& run : parts) {
        if (run.first == isNew)
            continue;
        if (run.first < end)
            return false;
        end = run.first + run.count;
    }
    return true;
}

bool RowRuns::unchanged() const {
    int row = 0;
    return std::all_of(parts.begin(), parts.end(), [&](const Run& run) {
        const bool same = run.first == row;
        row += run.count;
        return same;
    });
}

}  // namespace wirepane
