// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// Working the controls of views as a user does: control.*.
class ControlMethods {
public:
    // The session is not owned and outlives the table.
    explicit ControlMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer choose(Params& params);
    Answer set(Params& params);

    Session& session;
};

}  // namespace wirepane
