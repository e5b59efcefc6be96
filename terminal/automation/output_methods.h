// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

#include <memory>

namespace wirepane {
class Session;

// Printing and saving the selected news, with the dialogs answered: print.pdf, save.file.
class OutputMethods {
public:
    // The session is not owned and outlives the table.
    explicit OutputMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    void print(Params& params, const Reply& reply);
    Answer save(Params& params);

    Session& session;
    std::shared_ptr<bool> alive = std::make_shared<bool>(true);  // what is printed may outlast this
};

}  // namespace wirepane
