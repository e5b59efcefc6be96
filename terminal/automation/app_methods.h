// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

#include <QObject>

namespace wirepane {
class Session;

// The application as a whole: screenshot, wait, idle, app.quit.
class AppMethods : public QObject {
    Q_OBJECT

public:
    // The session is not owned and outlives the table.
    explicit AppMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    Answer screenshot(Params& params);
    void wait(Params& params, const Reply& reply);
    // Answers when a whole round of the event loop has brought nothing more, `rounds` times over.
    void answerWhenIdle(const Reply& reply, int rounds);
    bool refreshIsDue() const;

    Session& session;
};

}  // namespace wirepane
