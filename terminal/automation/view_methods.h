// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// Opening, closing and looking at views: view.*.
class ViewMethods {
public:
    // The session is not owned and outlives the table.
    explicit ViewMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer open(Params& params);
    Answer openDocked(Params& params);
    Answer close(Params& params);
    Answer resize(Params& params);
    Answer state(Params& params);
    Answer explain(Params& params);
    Answer command(Params& params);

    Session& session;
};

}  // namespace wirepane
