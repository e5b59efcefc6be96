// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/view_kinds.h"
#include "news_view/pane_shares.h"

#include <QRect>

#include <array>

namespace wirepane {

// What buttons need for icon and text, where the view grows them to that; 0: nothing.
struct ButtonNeeds {
    int service = 0;
    int relation = 0;
    int search = 0;
    int deals = 0;
    int showType = 0;
    std::array<int, 4> output{};  // page down, page up, save as, print
    int date = 0;                 // of the date picker
    int category = 0;             // of the combos
    int market = 0;
    int symbol = 0;
    int searchText = 0;  // of the search box
};

// All that the layout of a news view depends on. Pixels of the view's client area.
struct LayoutInput {
    QRect client;            // the client rectangle
    int fontHeight = 16;     // of the view font's text
    int titleHeight = 0;     // of the title band; 0 when none is shown
    int firstTabHeight = 0;  // 0 when the strip is absent or has no tabs
    int serviceCount = 0;
    int serviceComboText = 0;  // widths of the widest item texts
    int symbolComboText = 0;
    int captionButtonWidth = 0;  // of the platform's window buttons
    NewsType newsType = NewsType::Full;
    StoryShowType showType = StoryShowType::None;
    bool hasStoryPane = false;
    bool hasRelatedQuotes = false;
    bool hasAllNewsGrid = false;
    bool hasSearchLine = false;  // a line stands over the lists
    bool aligned = false;        // controls keep one margin at either side, and buttons have what they need
    ButtonNeeds needs;
    bool movable = false;  // the user may move the edges between list, story and quotes
    PaneShares shares;     // and has moved them so
};

// Where everything goes. An empty rectangle means: no room.
struct ViewLayout {
    QRect tabStrip, showTypeButton;
    QRect serviceButton, relationButton, warningButton, datePicker, categoryCombo, serviceCombo, symbolCombo,
        searchEdit;
    QRect searchButton, dealsButton;  // warning-term search takes the relation button's rectangle
    QRect pageDown, pageUp, saveAs, print;
    QRect searchLine;
    QRect grid;
    QRect gridWithoutControls;  // of the symbol and the warrant grid
    QRect storyPane, relatedQuotes;
    bool storyHidesHeadline = false;
    // Lines of one pixel that can be moved; empty where there are none.
    QRect listEdge, quotesEdge;
};

ViewLayout layOut(const LayoutInput& in);

}  // namespace wirepane
