// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"

#include <optional>

class HeadlineList;
class QString;
struct CHeadlineTable;

// What an owner of a part of the news view's work sees of the view. What only two owners share goes from one
// to the other by a call that is given at construction. Interface thread only.
class ViewContext {
public:
    virtual ~ViewContext() = default;

    // The list that the view shows: that of its mode.
    virtual ListIndex shownList() const = 0;
    virtual HeadlineList& listOf(ListIndex list) = 0;
    // What stands at a row of a list; nothing when there is no such row.
    virtual std::optional<CHeadlineTable> entryAt(ListIndex list, int row) const = 0;

    // Shows the story of the shown list's focused row, unless the pane shows that row's already; without a
    // focused row the story goes.
    virtual void showStory() = 0;
    // The pane shows no row's story any more: the next showStory shows one, whatever the row. For what
    // happens apart from a list's rows being replaced, which does it.
    virtual void forgetShownStory() = 0;

    // Writes the visible rows and the notices' list state anew, a moment later.
    virtual void refresh() = 0;
    // A tip over the grid of a list, in the place of the one before.
    static constexpr int shortTipMs = 1000;
    virtual void tipOver(ListIndex list, const QString& text, int timeMs = shortTipMs) = 0;
    // What the view has to say about its lists, such as the services that have nothing; empty: nothing.
    virtual void setStatusText(const QString& text) = 0;
    // What the notices tell may have changed: they are asked for and placed anew.
    virtual void placeNotices() = 0;
};
