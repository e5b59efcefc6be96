// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/entry_source.h"

// What the story dialog asks of the view whose headlines it shows. Interface thread only.
class StoryOwner : public EntrySource {
public:
    // Moves the view's selection to a row of a list.
    virtual bool bChangeNewsPos(int list, int row) = 0;
    // Prints, saves, the selected rows.
    virtual void OnPrintNews() = 0;
    virtual void OnSaveNews() = 0;
};
