// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/line_splitter.h"

#include <QObject>

namespace wirepane {

// A two-way stream of lines with one client. Interface thread only.
class LineChannel : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Sends a whole line, its line feed included. What a client that is gone would have got is dropped.
    virtual void send(const QByteArray& line) = 0;

signals:
    void lineReceived(const QByteArray& line);
    // A line passed the limit; its rest is being skipped.
    void lineTooLong();
    // The client sends no more.
    void ended();

protected:
    // What subclasses hand over as it comes in, and the end of it.
    void received(const QByteArray& bytes);
    void receivedAll();

private:
    LineSplitter splitter;
};

}  // namespace wirepane
