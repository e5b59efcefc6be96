// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"

#include <functional>

namespace wirepane {
class ControlSet;

}  // namespace wirepane

class QWidget;

namespace wirepane {
class StoryStage;
class ViewContext;

// The shortcuts of a view, the tool tips that tell of them, and the way of the Tab key. Interface thread
// only.
class Shortcuts {
public:
    struct Surroundings {
        QWidget& window;  // the view; holds the controls
        const ControlSet& controls;
        const StoryStage& stage;
        std::function<void(int)> carryOut;  // a command, by its number
        std::function<void()> tabChosen;    // the tab strip stands at another tab
    };

    // All that is referred to outlives the shortcuts.
    Shortcuts(ViewContext& view, Surroundings surroundings);

    // Each once, when there are all controls.
    void create();
    void setTabOrder();
    // In the language in force.
    void loadToolTips();

private:
    void stepMode(int step);
    bool goToMode(ListIndex mode);
    void goToSearchEdit();
    void openSearchOfMode();
    void openCalendar();
    void changePane();

    ViewContext& view;
    Surroundings around;
};

}  // namespace wirepane
