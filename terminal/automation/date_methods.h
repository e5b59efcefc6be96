// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// Picking the date of a view, as the user does: date.*.
class DateMethods {
public:
    // The session is not owned and outlives the table.
    explicit DateMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer set(Params& params);
    Answer open(Params& params);
    Answer close(Params& params);

    Session& session;
};

}  // namespace wirepane
