// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// Link groups and their symbols: view.link, symbol.change.
class LinkMethods {
public:
    // The session is not owned and outlives the table.
    explicit LinkMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer link(Params& params);
    Answer changeSymbol(Params& params);

    Session& session;
};

}  // namespace wirepane
