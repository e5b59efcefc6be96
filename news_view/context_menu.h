// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "news_view/command_menu.h"

#include <functional>
#include <optional>
#include <vector>

class BKQuoteInterface;

namespace wirepane {
class ListNotices;
class ViewContext;

// What the context menu of a view depends on.
struct MenuSituation {
    ListIndex mode = ListIndex::All;
    bool onRow = false;                    // it is asked for at a row of the grid
    bool showsCategory = false;            // the category column is shown
    bool hasStoryWindow = false;           // stories are shown in their window
    bool isFull = false;                   // ViewOption::RowMenu
    bool hasMarks = false;                 // ViewOption::ReadingMarks
    bool isStarred = false;                // the row is
    bool canHold = false;                  // ViewOption::HoldLists
    bool isHeld = false;                   // the list is
    bool hasFold = false;                  // headlines are folded at the row, or were
    bool canExport = false;                // the back end writes files of rows
    std::optional<bool> showsPrices = {};  // nothing: there are none
};

// The lines of the menu: what can be done with the list and the row, with news that waits (`waiting`), and
// about the notices.
std::vector<MenuEntry> contextMenuEntries(const MenuSituation& situation, BKQuoteInterface& backEnd,
                                          const std::vector<MenuEntry>& waiting, const ListNotices& notices);

// Where the context menu of a view pops up. Interface thread only.
class ContextMenu {
public:
    struct Surroundings {
        const QWidget& window;             // the view
        std::function<int()> titleHeight;  // of the band at the top of the window whose menu is another one
        std::function<std::vector<MenuEntry>(bool onRow)> entries;
    };

    // All that is referred to outlives this.
    ContextMenu(ViewContext& view, CommandMenu& menu, Surroundings surroundings);

    // At a point of the screen. False in the title.
    bool openAt(const QPoint& screen);
    // At the row that the keys are at, as if it had been clicked.
    void openByKey();

private:
    void open(const QPoint& screen, bool onRow);

    ViewContext& view;
    CommandMenu& menu;
    Surroundings around;
};

}  // namespace wirepane
