// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/lines/line_channel.h"

#include <QProcess>

namespace wirepane {

// The standard input and output of a program that runs beside this one, and ends with the channel.
class ProcessChannel : public LineChannel {
    Q_OBJECT

public:
    ProcessChannel(const QString& program, const QStringList& arguments);
    ~ProcessChannel() override;

    void send(const QByteArray& line) override;

signals:
    // It could not be started, or has ended: why, in the system's words or its own.
    void stopped(const QString& reason);

protected:
    void heldChanged() override;

private:
    void read();
    void stop();

    QProcess process;
    bool isOver = false;
};

}  // namespace wirepane
