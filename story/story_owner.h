// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/entry_source.h"

namespace wirepane {

// What the story dialog asks of the view whose headlines it shows. Interface thread only.
class StoryOwner : public EntrySource {
public:
    // Moves the view's selection to a row of a list.
    virtual void goTo(ListIndex list, int row) = 0;
    // The row at which a list has a headline; -1: it has left the list.
    virtual int rowOf(ListIndex list, const CHeadlineTable& headline) const = 0;
    // Prints, saves, a headline, whether it is listed or not.
    virtual void printHeadline(const CHeadlineTable& headline) = 0;
    virtual void saveHeadline(const CHeadlineTable& headline) = 0;
};

}  // namespace wirepane
