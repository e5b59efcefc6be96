// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"

#include <QString>

#include <functional>

namespace wirepane {
class HeadlineList;

}  // namespace wirepane

namespace wirepane {

// What an owner of a part of the news view's work sees of the view. What only two owners share goes from one
// to the other by a call that is given at construction. Interface thread only.
class ViewContext {
public:
    virtual ~ViewContext() = default;

    // The list that the view shows: that of its mode.
    virtual ListIndex shownList() const = 0;
    virtual HeadlineList& listOf(ListIndex list) = 0;

    // Shows the story of the shown list's focused row, unless the pane shows that row's already; without a
    // focused row the story goes.
    virtual void showStory() = 0;
    // The same, where the reader's hand asks for it.
    virtual void openStory() { showStory(); }
    virtual void clearStory() = 0;
    virtual bool paneShowsStories() const = 0;

    // Writes the visible rows anew, a moment later.
    virtual void refresh() = 0;
    // `read` reads a list anew, and what the reader looks at stays where it is: the rows, and the pane's
    // story. Its result: what `read` says.
    virtual bool readInPlace(ListIndex list, const std::function<bool()>& read) = 0;
    // What the view has to say about its lists, such as the services without news; empty: nothing.
    virtual void setStatusText(const QString& text) = 0;
    // What the notices tell may have changed: they are asked for and placed anew.
    virtual void placeNotices() = 0;
};

}  // namespace wirepane
