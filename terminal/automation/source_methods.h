// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// The list of sources over the network: source.*.
class SourceMethods {
public:
    // The session is not owned and outlives the table.
    explicit SourceMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    void list(const Reply& reply);
    void add(Params& params, const Reply& reply);
    void pause(Params& params, const Reply& reply);
    void remove(Params& params, const Reply& reply);
    void move(Params& params, const Reply& reply);
    void test(Params& params, const Reply& reply);

    Session& session;
};

}  // namespace wirepane
