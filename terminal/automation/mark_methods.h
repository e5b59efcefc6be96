// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// What the user has read and starred: mark.*.
class MarkMethods {
public:
    // The session is not owned and outlives the table.
    explicit MarkMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer get(Params& params) const;
    Answer set(Params& params) const;

    Session& session;
};

}  // namespace wirepane
