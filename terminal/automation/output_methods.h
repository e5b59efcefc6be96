// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// Printing and saving the selected news, with the dialogs answered: print.pdf, save.file.
class OutputMethods {
public:
    // The session is not owned and outlives the table.
    explicit OutputMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer print(Params& params);
    Answer save(Params& params);

    Session& session;
};

}  // namespace wirepane
