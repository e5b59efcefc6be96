// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// Keys and clicks as a user makes them: input.*.
class InputMethods {
public:
    // The session is not owned and outlives the table.
    explicit InputMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer key(Params& params);
    Answer type(Params& params);
    Answer click(Params& params);

    Session& session;
};

}  // namespace wirepane
