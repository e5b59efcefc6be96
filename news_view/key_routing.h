// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "host/contract/view_kinds.h"

#include <Qt>

#include <set>

namespace wirepane {

// What has the keyboard inside a news view.
enum class KeyboardFocus {
    Grid,     // the grid of the current mode
    View,     // the view itself, or nothing in it
    Control,  // a control, which has keys of its own
};

struct KeySituation {
    ListIndex mode = ListIndex::All;
    NewsType newsType = NewsType::Full;
    bool paneShowsStories = false;
    KeyboardFocus focus = KeyboardFocus::View;
};

// What becomes of a key that is pressed in a news view.
struct KeyRoute {
    bool consumed = false;   // its receiver does not get it
    bool atRelease = false;  // what follows is done when the key is released
    bool toGrid = false;     // the current grid gets it
    bool toView = false;     // the view itself gets it
    bool showStory = false;  // then the story of the grid's row is shown

    bool operator==(const KeyRoute&) const = default;
};

// Decides by key. With Ctrl, Alt or Meta a key is its receiver's own affair.
KeyRoute routeKey(int key, Qt::KeyboardModifiers modifiers, const KeySituation& situation);

// Keys that act when they are released: once for each press and once for each auto-repeat, whether the
// platform tells of releases between the repeats or not.
class KeysAtRelease {
public:
    // True when the press before this auto-repeat is still to be acted on: it is due now.
    bool press(int key, bool repeats);
    // True when the release is to be acted on; false for a key that was pressed elsewhere.
    bool release(int key);

private:
    std::set<int> pressed;
};

}  // namespace wirepane
