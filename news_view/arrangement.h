// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/common_parts.h"
#include "news_view/view_layout.h"

#include <QPointer>

#include <functional>

namespace wirepane {
class PaneHandle;
class StoryStage;
class ViewContext;

// Where the controls, the grids and the story of a view stand in its window. Interface thread only.
class Arrangement {
public:
    // What it depends on beside the parts, of this moment.
    struct Calls {
        std::function<int()> fontHeight;   // of the view font's text, in pixels
        std::function<int()> titleHeight;  // of the title band; 0 when none is shown
        std::function<StoryShowType()> showType;
    };

    // All that is referred to outlives this.
    Arrangement(ViewContext& view, const CommonParts& parts, StoryStage& stage, Calls calls);

    // How everything would be laid out now.
    ViewLayout layout() const;
    // Lays it out.
    void place();
    // Whether it ever was.
    bool isPlaced() const { return placed; }
    // True when the window is of another width than at the last call.
    bool takeWidth();
    // The width that the story leaves for the grid.
    int gridWidth() const;
    // The user moves an edge of the panes to a place of the window, or back to where the layout has it.
    void moveEdge(bool ofQuotes, int place);
    void restoreEdge(bool ofQuotes);

private:
    PaneEdge edgeOf(bool ofQuotes) const;
    void placeHandles(const ViewLayout& places);
    LayoutInput input() const;
    bool isAligned() const;
    int widthOfDate() const;
    int widthOfCombo(int id) const;
    ButtonNeeds needs() const;

    ViewContext& view;
    const CommonParts parts;
    StoryStage& stage;
    const Calls calls;
    bool placed = false;
    int takenWidth = 0;
    QPointer<PaneHandle> listHandle;  // both belong to the window; null: edges cannot be moved
    QPointer<PaneHandle> quotesHandle;
};

}  // namespace wirepane
