// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"
#include "news_view/command_menu.h"

#include <QObject>

#include <functional>

class TRVNewsStory;

namespace wirepane {
class StoryStage;
struct ViewSettings;

// What the user does in a story itself, in the pane and in windows: its size, its symbols, its menu.
// Interface thread only.
class StoryInput : public QObject {
public:
    struct Surroundings {
        QWidget& window;  // the view
        StoryStage& stage;
        ViewSettings& settings;
        std::function<TRVNewsStory*()> newWindow;              // a plain one
        std::function<void(const CSymbolInfo&)> chooseSymbol;  // for the link group
        std::function<void()> openWindow;                      // for the pane's story
        std::function<bool()> canSearch;
        std::function<void(const QString&)> searchFor;
    };

    // All that is referred to outlives this.
    explicit StoryInput(Surroundings surroundings);

    // Takes what the pane tells, once there is one.
    void connectPane();
    // A window as the settings want it; it belongs to the caller.
    TRVNewsStory* makeWindow();
    // Stories are set one step larger (1), smaller (-1), or as large as at first (0).
    void stepSize(int step);
    // Stories are set in the colours and the size of this moment.
    void applySetting();

private:
    void openMenu(const QPoint& screen);
    void carryOut(int command);
    QString selectedWords() const;

    Surroundings around;
    CommandMenu menu;
};

}  // namespace wirepane
