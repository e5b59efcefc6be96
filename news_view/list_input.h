// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/key_router.h"
#include "news_view/key_routing.h"

#include <functional>

class QWheelEvent;

namespace wirepane {
class StoryStage;
class ViewContext;

// Keys and the wheel for the list that a view shows, wherever in the view they arrive. Interface thread only.
class ListInput {
public:
    struct Surroundings {
        QWidget& window;                         // the view; gets the keys that are the view's own
        const StoryStage& stage;                 // what lies there has keys and a wheel of its own
        std::function<NewsType()> newsType;      // of the view
        std::function<bool()> paneShowsStories;  // then a key that moves the list shows the story of its row
        std::function<void()> openContextMenu;   // by key
    };

    // All that is referred to outlives the input.
    ListInput(ViewContext& view, Surroundings surroundings);

    // A key on its way to the view or one of its controls; true: nobody else gets it.
    bool takeBefore(const QKeyEvent& event);
    // A key that nobody has taken; true: it was for the list.
    bool takePress(const QKeyEvent& event);
    // A key that has been let go; true: it acts now.
    bool takeRelease(const QKeyEvent& event);
    // Copies the selected rows as text.
    void copyRows() const;

    // The wheel over the view, unless it is over what has one of its own. Sideways it moves the list while
    // that has the keyboard.
    void takeWheel(const QWheelEvent& event);
    void scrollSideways(Qt::Key key);

private:
    KeySituation situation() const;
    void carryOut(const KeyRoute& route, const QKeyEvent& event);
    void handOn(QWidget& receiver, const QKeyEvent& event);

    ViewContext& view;
    Surroundings around;
    KeyRouter router;
    KeysAtRelease keysAtRelease;
    bool handingKeyOn = false;  // the key that arrives is one that is handed on here
    bool handingWheelOn = false;
};

}  // namespace wirepane
