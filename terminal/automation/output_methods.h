// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/news_module.h"
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
    void save(Params& params, const Reply& reply);

    using PutOut = NewsOutcome (NewsViewAccess::*)(const std::optional<OutputTarget>&);
    void putOut(Params& params, const Reply& reply, OutputTarget& target, PutOut method,
                const QString& counted);

    Session& session;
    std::shared_ptr<bool> alive = std::make_shared<bool>(true);  // what is printed may outlast this
};

}  // namespace wirepane
