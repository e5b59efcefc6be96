// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/command_menu.h"

#include <vector>

namespace wirepane {

enum class StoryCommand { Copy = 1, SelectAll, OpenInWindow, Search, TurnChanges };

struct StoryMenuState {
    QString selected;
    bool canSearch = false;   // the view searches
    bool hasChanges = false;  // the story has
};

// What the menu of a story offers. Whole words of one line can be searched for.
std::vector<MenuEntry> storyMenuEntries(const StoryMenuState& state);

}  // namespace wirepane
