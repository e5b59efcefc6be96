// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/key_routing.h"

namespace wirepane {

namespace {

KeyRoute otherKey(const KeySituation& situation) {
    // A control that has the keyboard keeps its keys: an edit in which nothing can be typed is none.
    const bool viewTakesKeys = situation.newsType == NewsType::Symbol || situation.newsType == NewsType::Bare;
    if (!viewTakesKeys || situation.focus == KeyboardFocus::Control)
        return {};
    return {.consumed = true, .toView = true};
}

}  // namespace

KeyRoute routeKey(int key, Qt::KeyboardModifiers modifiers, const KeySituation& situation) {
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return {};
    const bool gridHasFocus = situation.focus == KeyboardFocus::Grid;
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // There the combos and the search edit take it.
            if (situation.mode == ListIndex::Symbol || situation.mode == ListIndex::Search || !gridHasFocus)
                return {};
            return {.consumed = true, .toGrid = true};
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Up:
        case Qt::Key_Down:
            return {.consumed = true,
                    .atRelease = true,
                    .toGrid = gridHasFocus,
                    .showStory = situation.paneShowsStories};
        case Qt::Key_End:
        case Qt::Key_Home:
        case Qt::Key_Left:
        case Qt::Key_Right:
            return {.consumed = true, .toGrid = gridHasFocus, .showStory = situation.paneShowsStories};
        default:
            return otherKey(situation);
    }
}

bool KeysAtRelease::press(int key, bool repeats) {
    // A press that is none of these may have been released in another window.
    return !pressed.insert(key).second && repeats;
}

bool KeysAtRelease::release(int key) {
    return pressed.erase(key) > 0;
}

}  // namespace wirepane
