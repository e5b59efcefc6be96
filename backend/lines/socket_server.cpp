// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/socket_server.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr int acceptAgainMs = 1000;
constexpr std::chrono::milliseconds watchInterval{1000};

}  // namespace

SocketChannel::SocketChannel(int descriptor, SocketServer& itsServer)
    : LineChannel(&itsServer), server(itsServer) {
    socket.setReadBufferSize(chunk);
    connect(&socket, &QLocalSocket::readyRead, this, &SocketChannel::read);
    connect(&socket, &QLocalSocket::bytesWritten, this, &SocketChannel::read);
    connect(&socket, &QLocalSocket::disconnected, this, [this] {
        isGone = true;
        read();
    });
    socket.setSocketDescriptor(descriptor);
}

SocketChannel::~SocketChannel() {
    // Closing tells of a client that is gone, which nobody is here to hear.
    socket.disconnect(this);
    server.left(this);
}

void SocketChannel::read() {
    while (socket.bytesAvailable() > 0 && mayRead()) {
        server.longLines.heard(this);
        // More than can be there: else the socket, whose buffer was full, does not go on.
        received(socket.read(chunk + 1));
    }
    if (!isHeld() && !keepsLongLine())
        server.readAllSoon();
    endWhenRead();
}

bool SocketChannel::mayRead() {
    // Who is gone takes no more answers, but what it sent counts.
    if (isHeld() || (!isGone && socket.bytesToWrite() > mostUnsent))
        return false;
    if (!keepsLongLine())
        return true;
    const bool isAdmitted = server.longLines.admit(this);
    if (!isAdmitted)
        server.watching.start();
    return isAdmitted;
}

void SocketChannel::endWhenRead() {
    if (!isGone || hasEnded || socket.bytesAvailable() > 0 || isHeld())
        return;
    hasEnded = true;
    receivedAll();
    deleteLater();
}

void SocketChannel::heldChanged() {
    // From the event loop: whoever lets go is in the middle of something.
    if (!isHeld())
        QMetaObject::invokeMethod(this, &SocketChannel::read, Qt::QueuedConnection);
}

void SocketChannel::sendOff() {
    hasEnded = true;
    socket.abort();
    emit ended();
    deleteLater();
}

void SocketChannel::send(const QByteArray& line) {
    if (socket.state() == QLocalSocket::ConnectedState) {
        socket.write(line);
        socket.flush();
    }
}

SocketServer::SocketServer(std::chrono::milliseconds silence) : longLines(silence) {
    again.setSingleShot(true);
    connect(&again, &QTimer::timeout, this, &SocketServer::acceptClients);
    watching.setInterval(std::min<std::chrono::milliseconds>(silence, watchInterval));
    connect(&watching, &QTimer::timeout, this, &SocketServer::dropSilent);
}

SocketServer::~SocketServer() {
    // They tell the server that they leave.
    for (const SocketChannel* channel : std::vector(channels))
        delete channel;
}

Done SocketServer::listen(const QString& name) {
    const Result<QString> path = socketPath(name);
    if (!path)
        return path.error();
    auto opened = OwnSocket::listen(path.value());
    if (!opened)
        return opened.error();
    socket = std::move(opened.value());
    notifier = std::make_unique<QSocketNotifier>(socket->descriptor(), QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, &SocketServer::acceptClients);
    return Nothing{};
}

void SocketServer::acceptClients() {
    while (channels.size() < mostClients) {
        int client = -1;
        const OwnSocket::Accepted accepted = socket->accept(client);
        if (accepted != OwnSocket::Accepted::Client) {
            // Without a descriptor to spare the client would be announced again at once.
            const bool hasRoom = accepted == OwnSocket::Accepted::Nobody;
            notifier->setEnabled(hasRoom);
            if (!hasRoom)
                again.start(acceptAgainMs);
            return;
        }
        channels.push_back(new SocketChannel(client, *this));
        emit connected(channels.back());
    }
    notifier->setEnabled(false);
}

void SocketServer::left(SocketChannel* channel) {
    std::erase(channels, channel);
    longLines.leave(channel);
    if (notifier && !again.isActive())
        notifier->setEnabled(true);
    readAllSoon();
}

// Those that wait with a long line see whether it is their turn.
void SocketServer::readAllSoon() {
    for (SocketChannel* channel : channels) {
        if (!channel->keepsLongLine() && !channel->isHeld())
            longLines.leave(channel);
    }
    if (!longLines.anybodyWaits())
        return;
    for (SocketChannel* channel : channels) {
        if (channel->keepsLongLine())
            QMetaObject::invokeMethod(channel, &SocketChannel::read, Qt::QueuedConnection);
    }
}

void SocketServer::dropSilent() {
    const std::set<const void*> silent = longLines.silent();
    for (SocketChannel* channel : std::vector(channels)) {
        // Who is held is silent because nobody asks.
        if (silent.contains(channel) && !channel->isHeld())
            channel->sendOff();
    }
    if (!longLines.anybodyWaits())
        watching.stop();
}

}  // namespace wirepane
