// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// The diary beside the store: diary.*.
class DiaryMethods {
public:
    // The session is not owned and outlives the table.
    explicit DiaryMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer state() const;
    Answer choose(Params& params) const;

    Session& session;
};

}  // namespace wirepane
