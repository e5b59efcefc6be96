// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// What the user is told of: alert.*.
class AlertMethods {
public:
    // The session is not owned and outlives the table.
    explicit AlertMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer list() const;
    Answer rules() const;
    Answer setRules(Params& params) const;
    Answer see() const;

    Session& session;
};

}  // namespace wirepane
