// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <vector>

namespace wirepane {

// Says for each row of a list which row it was in an earlier state of the list, or that it is new. It keeps
// runs of neighbours, so that it stays small while most rows keep their neighbours. Rows count from 0.
class WIREPANE_HOST_EXPORT RowRuns {
public:
    static constexpr int isNew = -1;

    // `count` rows that were `first`, `first` + 1, ...; of a run with `first` = isNew all are new.
    struct Run {
        int first;
        int count;
    };

    // Nothing has changed yet.
    explicit RowRuns(int count);

    int size() const { return total; }
    const std::vector<Run>& runs() const { return parts; }
    // What the row was, or isNew.
    int oldRow(int row) const;
    // Where the old row stands now; -1 when it is gone.
    int newRow(int oldRow) const;

    // Puts a new row in before `row`, in [0, size()].
    void insert(int row) { put(row, isNew); }
    // Takes out a row in [0, size()).
    void remove(int row);
    // Moves a row in [0, size()) to row 0.
    void moveToTop(int row);

    // By how many rows the first of the old rows from `oldRow` on that was not moved has changed its place; 0
    // when there is none.
    int shiftFrom(int oldRow) const;

    // The old rows out of `oldCount` that are gone, as runs from the last to the first.
    std::vector<Run> gone(int oldCount) const;
    // The old state changes: the rows from `oldRow` on were `by` rows further down.
    void renumber(int oldRow, int by);
    // The old state has the new rows of this run (an index into runs()) as `first`, `first` + 1, ...
    void setOld(std::size_t run, int first) { parts[run].first = first; }
    // No old row stands above one that stood above it.
    bool inOrder() const;
    // Every row is what it was.
    bool unchanged() const;

private:
    void put(int row, int oldRow);
    // The run that begins at `row`, cutting one in two if need be.
    std::size_t cutAt(int row);
    // Makes one run of a run and the one before it, when they are neighbours.
    void join(std::size_t run);

    std::vector<Run> parts;
    int total;
};

}  // namespace wirepane
