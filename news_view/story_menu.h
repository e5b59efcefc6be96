// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/command_menu.h"

#include <vector>

namespace wirepane {

enum class StoryCommand { Copy = 1, SelectAll, OpenInWindow, Search };

// What the menu of a story offers where this is selected. Whole words of one line can be searched for, where
// the view searches.
std::vector<MenuEntry> storyMenuEntries(const QString& selected, bool canSearch);

}  // namespace wirepane
