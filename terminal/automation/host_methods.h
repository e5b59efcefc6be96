// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// What the host sets for all views: host.*.
class HostMethods {
public:
    // The session is not owned and outlives the table.
    explicit HostMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer set(Params& params);

    Session& session;
};

}  // namespace wirepane
