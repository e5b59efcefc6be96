// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"

#include <QString>

#include <functional>
#include <optional>

namespace wirepane {
class HeadlineList;

}  // namespace wirepane

struct CHeadlineTable;

namespace wirepane {

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
    virtual void clearStory() = 0;
    virtual bool paneShowsStories() const = 0;
    // Whether showStory opens no window: the pane is the place of stories, or their window is open.
    virtual bool hasOpenStory() const = 0;
    // The pane shows no row's story any more: the next showStory shows one, whatever the row. For what
    // happens apart from a list's rows being replaced, which does it.
    virtual void forgetShownStory() = 0;

    // Writes the visible rows anew, a moment later.
    virtual void refresh() = 0;
    // `read` reads a list anew, and what the reader looks at stays where it is: the rows, and the pane's
    // story. Its result: what `read` says.
    virtual bool readInPlace(ListIndex list, const std::function<bool()>& read) = 0;
    // What the view has to say about its lists, such as the services without news; empty: nothing.
    virtual QString statusText() const = 0;
    virtual void setStatusText(const QString& text) = 0;
    // What the notices tell may have changed: they are asked for and placed anew.
    virtual void placeNotices() = 0;
};

}  // namespace wirepane
