// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "news_view/common_parts.h"

#include <functional>

class QString;

namespace wirepane {
class StoryStage;
class ViewContext;

// The mode that a view is in, and what a switch to another one shows, hides and reads. Interface thread only.
class Modes {
public:
    // What others do at a switch.
    struct Calls {
        std::function<void(ListIndex)> readAgain;   // a list that has missed something, where its reader is
        std::function<bool(ListIndex)> readDay;     // the list of a day: all news, key sets, warrants
        std::function<bool()> readSymbolNews;       // true: there is a symbol
        std::function<void()> registerWarrants;     // with the real-time distribution
        std::function<void()> fillCategories;       // the category combo, for the first time
        std::function<void()> offerSymbols;         // in the combos of the symbol mode
        std::function<void()> hideWhatSymbolsLack;  // of the symbol mode that is shown
        std::function<void()> servicesTakenOver;    // the ticks of the services may be others
        std::function<void()> place;                // what stands over the list may be there or not
    };

    // All that is referred to outlives the modes.
    Modes(ViewContext& view, const CommonParts& parts, StoryStage& stage, Calls calls);

    ListIndex shown() const { return mode; }
    // Shows a mode; nothing happens before there is a place for stories.
    void switchTo(ListIndex next);
    // Shows the controls and the grid of a mode and hides those of the others.
    void showParts(ListIndex of);
    // Reads the list of a mode: see TRVNewsCtrlView::InitialHeadlineTable.
    bool read(ListIndex list);

private:
    void catchUp();
    void takeServicesOver(ListIndex toLoad);
    void load(ListIndex toLoad);
    void takeKeyboard();
    bool readWarrants();

    ViewContext& view;
    const CommonParts parts;
    StoryStage& stage;
    const Calls calls;
    ListIndex mode = ListIndex::All;
};

}  // namespace wirepane
