// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/socket_server.h"

#include <QLocalSocket>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int answerTimeMs = 500;

bool isAnswered(const QString& name) {
    QLocalSocket probe;
    probe.connectToServer(name);
    return probe.waitForConnected(answerTimeMs);
}

}  // namespace

SocketChannel::SocketChannel(QLocalSocket* client, QObject* parent) : LineChannel(parent), socket(client) {
    socket->setParent(this);
    connect(socket, &QLocalSocket::readyRead, this, [this] { received(socket->readAll()); });
    connect(socket, &QLocalSocket::disconnected, this, [this] {
        received(socket->readAll());
        receivedAll();
        deleteLater();
    });
}

void SocketChannel::send(const QByteArray& line) {
    if (socket->state() == QLocalSocket::ConnectedState) {
        socket->write(line);
        socket->flush();
    }
}

Done SocketServer::listen(const QString& name) {
    if (isAnswered(name))
        return Error{u"The local socket %1 is in use by another program."_s.arg(name)};
    QLocalServer::removeServer(name);
    server.setSocketOptions(QLocalServer::UserAccessOption);
    if (!server.listen(name))
        return Error{u"The local socket %1 cannot be opened: %2."_s.arg(name, server.errorString())};
    connect(&server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* client = server.nextPendingConnection())
            emit connected(new SocketChannel(client, this));
    });
    return Nothing{};
}

}  // namespace wirepane
