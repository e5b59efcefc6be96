// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

#include <QObject>

namespace wirepane {
class Session;

// The menus of views: menu.*.
class MenuMethods : public QObject {
    Q_OBJECT

public:
    // The session is not owned and outlives the table.
    explicit MenuMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    void open(Params& params, const Reply& reply);
    Answer choose(Params& params);
    // Answers with the open menu's items; an error when none has opened after so many looks.
    void answerWhenOpen(const Reply& reply, int looks);

    Session& session;
};

}  // namespace wirepane
