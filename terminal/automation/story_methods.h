// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// Looking at the stories on show: story.*.
class StoryMethods {
public:
    // The session is not owned and outlives the table.
    explicit StoryMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer state(Params& params);

    Session& session;
};

}  // namespace wirepane
