// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// Reading and moving in the grids of views: grid.*.
class GridMethods {
public:
    // The session is not owned and outlives the table.
    explicit GridMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer read(Params& params);
    Answer select(Params& params);
    Answer scroll(Params& params);

    Session& session;
};

}  // namespace wirepane
