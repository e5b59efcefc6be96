// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

namespace wirepane {

// The edges between the areas of a view that the user can move: between list and story, and between story and
// quotes, each where the story stands at the right and where it stands below.
enum class PaneEdge { ListRight, ListBelow, QuotesRight, QuotesBelow };
inline constexpr int paneEdges = 4;

// Where the user has moved the edges: what the list, or the story, has of the room of both, in parts of 1000;
// 0: as the layout gives it.
struct PaneShares {
    std::array<int, paneEdges> shares{};

    int of(PaneEdge edge) const { return shares[static_cast<std::size_t>(edge)]; }
    void set(PaneEdge edge, int share);
    // An edge between `from` and `to`: `stated` where the user has not moved it, else his, so that either
    // side keeps room to be seen.
    int place(PaneEdge edge, int from, int to, int stated) const;

    // As a text to keep, and back; what makes no sense counts as not moved.
    QString keptText() const;
    static PaneShares restored(const QString& kept);
};

}  // namespace wirepane
