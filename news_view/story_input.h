// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QObject>

#include <functional>

namespace wirepane {
class StoryStage;
struct ViewSettings;

// What the user does in a typeset story itself: its size, its symbols. Interface thread only.
class StoryInput : public QObject {
public:
    struct Surroundings {
        StoryStage& stage;
        ViewSettings& settings;
        std::function<void(const CSymbolInfo&)> chooseSymbol;  // for the link group
    };

    // All that is referred to outlives this.
    explicit StoryInput(Surroundings surroundings);

    // Takes what the pane tells, once there is one.
    void connectPane();
    // Stories are set one step larger (1), smaller (-1), or as large as at first (0).
    void stepSize(int step);

private:
    Surroundings around;
};

}  // namespace wirepane
