// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"
#include "terminal/automation/line_channel.h"

#include <QLocalServer>

class QLocalSocket;

namespace wirepane {

// One client on a local socket. Deletes itself when the client is gone.
class SocketChannel : public LineChannel {
    Q_OBJECT

public:
    // Takes the socket over.
    SocketChannel(QLocalSocket* socket, QObject* parent);

    void send(const QByteArray& line) override;

private:
    QLocalSocket* socket;
};

// Listens on a local socket that only the same user may open, for any number of clients.
class SocketServer : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Fails when another program answers under this name; one that crashed and left its socket is replaced.
    Done listen(const QString& name);

signals:
    // The channel belongs to the server.
    void connected(LineChannel* channel);

private:
    QLocalServer server;
};

}  // namespace wirepane
