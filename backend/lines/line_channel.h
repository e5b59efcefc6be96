// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/lines/line_splitter.h"

#include <QObject>

namespace wirepane {

// A two-way stream of lines with one client. Interface thread only.
class LineChannel : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // What is read of a client at a time, in bytes.
    static constexpr qsizetype chunk = 64 * 1024;

    // Sends a whole line, its line feed included. What a client that is gone would have got is dropped.
    virtual void send(const QByteArray& line) = 0;

    // While a channel is held nothing more is read, and the client waits; lines that have been read already
    // (less than a chunk) still come. For who gets lines faster than they can be done with.
    void setHeld(bool held);
    bool isHeld() const { return held; }

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
    // Bytes of a line whose end has not come.
    qsizetype unfinished() const { return splitter.unfinishedBytes(); }
    // `held` has changed; called from the code of who gets the lines.
    virtual void heldChanged() = 0;

private:
    LineSplitter splitter;
    bool held = false;
};

}  // namespace wirepane
