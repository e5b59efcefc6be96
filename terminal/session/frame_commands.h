// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace wirepane {

class Session;

// What the main frame's menu commands do to the session.
class FrameCommands : public QObject {
    Q_OBJECT

public:
    // The session is not owned and must outlive this.
    explicit FrameCommands(Session& session);

private:
    void readAsOf();
    void save();
    void warn(const QString& sentence);

    Session& session;
};

}  // namespace wirepane
