// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/lines/line_channel.h"
#include "backend/lines/long_lines.h"
#include "backend/lines/own_socket.h"

#include <QLocalSocket>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>

#include <vector>

namespace wirepane {
class SocketServer;

// One client on a local socket. Deletes itself when the client is gone.
class SocketChannel : public LineChannel {
    Q_OBJECT

public:
    // What a client may have sent of a line without the server's leave, in bytes.
    static constexpr qsizetype share = 256 * 1024;
    // Answers that a client does not take, in bytes: nothing more is read of it then.
    static constexpr qint64 mostUnsent = 4 * 1024 * 1024;

    // Takes the connected socket over. The server outlives the channel.
    SocketChannel(int descriptor, SocketServer& server);
    ~SocketChannel() override;

    void send(const QByteArray& line) override;
    // Reads what may be read.
    void read();
    bool keepsLongLine() const { return unfinished() > share; }
    // Drops what has come of an unfinished line, and the client.
    void sendOff();

protected:
    void heldChanged() override;

private:
    bool mayRead();
    void endWhenRead();

    SocketServer& server;
    QLocalSocket socket;
    bool isGone = false;
    bool hasEnded = false;
};

// Listens on a local socket that only programs of the same user may open. What its clients send is read as it
// is taken: each may have its share waiting, a few a long line; further clients wait until one leaves.
class SocketServer : public QObject {
    Q_OBJECT

public:
    static constexpr std::size_t mostClients = 64;

    // A client that keeps others from sending long lines and sends nothing of its own for so long is sent
    // off.
    explicit SocketServer(std::chrono::milliseconds silence = std::chrono::seconds(5));
    ~SocketServer() override;

    // `name` as own_socket.h has it. Fails when the socket cannot be had.
    Done listen(const QString& name);

signals:
    // The channel belongs to the server.
    void connected(LineChannel* channel);

private:
    friend class SocketChannel;

    void acceptClients();
    void dropSilent();
    void readAllSoon();
    void left(SocketChannel* channel);

    std::unique_ptr<OwnSocket> socket;
    std::unique_ptr<QSocketNotifier> notifier;
    std::vector<SocketChannel*> channels;
    LongLines longLines;
    QTimer again;     // after the system had no room for a client
    QTimer watching;  // for silence
};

}  // namespace wirepane
