// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "news_view/command_menu.h"

#include <vector>

class BKQuoteInterface;
class ListNotices;

// What the context menu of a view depends on.
struct MenuSituation {
    ListIndex mode = ListIndex::All;
    bool onRow = false;           // it is asked for at a row of the grid
    bool showsCategory = false;   // the category column is shown
    bool hasStoryWindow = false;  // stories are shown in their window
};

// The lines of the menu: what can be done with the list and the row, with news that waits (`waiting`), and
// about the notices.
std::vector<MenuEntry> contextMenuEntries(const MenuSituation& situation, BKQuoteInterface& backEnd,
                                          const std::vector<MenuEntry>& waiting, const ListNotices& notices);
