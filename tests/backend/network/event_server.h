// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>
#include <QWebSocket>
#include <QWebSocketServer>

#include <vector>

namespace wirepane {

// Sends events to whoever has called, from the one behind that which the caller knows, and each new one at
// once.
class EventServer : public QTcpServer {
public:
    EventServer() { plugIn(); }

    QUrl url() const { return QUrl(QStringLiteral("http://localhost:%1/events").arg(port)); }
    void plugIn() {
        listen(QHostAddress::LocalHost, port);
        port = serverPort();
    }
    void unplug() {
        close();
        for (QTcpSocket* socket : findChildren<QTcpSocket*>())
            socket->abort();
    }
    // The first event is 1.
    void publish(const QByteArray& data) {
        events.push_back(data);
        sendAll([this](QTcpSocket& socket) { send(socket, events.size()); });
    }
    // These bytes as they are.
    void say(const QByteArray& bytes) {
        sendAll([&](QTcpSocket& socket) { socket.write(bytes); });
    }

    QByteArray head = "HTTP/1.1 200 OK\r\nContent-Type: text/event-stream\r\n\r\nretry: 1\n\n";
    std::vector<QByteArray> asked;  // the heads of requests

protected:
    void incomingConnection(qintptr descriptor) override {
        auto* socket = new QTcpSocket(this);
        socket->setSocketDescriptor(descriptor);
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            asked.push_back(socket->readAll());
            socket->write(head);
            const QByteArray field = "last-event-id: ";
            const qsizetype at = asked.back().toLower().indexOf(field);
            const qsizetype from = at + field.size();
            const QByteArray known = asked.back().mid(from, asked.back().indexOf('\r', from) - from);
            for (std::size_t i = at < 0 ? 1 : known.toUInt() + 1; i <= events.size(); ++i)
                send(*socket, i);
            socket->setProperty("isFollowing", true);
        });
    }

private:
    void send(QTcpSocket& socket, std::size_t number) {
        socket.write("id: " + QByteArray::number(qsizetype(number)) + "\ndata: " + events[number - 1] +
                     "\n\n");
    }
    template <class Sending>
    void sendAll(const Sending& sending) {
        for (QTcpSocket* socket : findChildren<QTcpSocket*>()) {
            if (socket->property("isFollowing").toBool())
                sending(*socket);
        }
    }

    std::vector<QByteArray> events;
    quint16 port = 0;
};

// The same over a web socket, which has no way to say what is known: it sends the last ten again.
class MessageServer : public QWebSocketServer {
public:
    MessageServer() : QWebSocketServer(QStringLiteral("news"), NonSecureMode) {
        connect(this, &QWebSocketServer::newConnection, this, [this] {
            QWebSocket* const socket = nextPendingConnection();
            socket->setParent(this);
            connect(socket, &QWebSocket::disconnected, socket, &QObject::deleteLater);
            const std::size_t first = messages.size() < 10 ? 0 : messages.size() - 10;
            for (std::size_t i = first; i < messages.size(); ++i)
                socket->sendTextMessage(messages[i]);
        });
        plugIn();
    }

    QUrl url() const { return QUrl(QStringLiteral("ws://localhost:%1/news").arg(port)); }
    void plugIn() {
        listen(QHostAddress::LocalHost, port);
        port = serverPort();
    }
    void unplug() {
        close();
        for (QWebSocket* socket : findChildren<QWebSocket*>())
            socket->abort();
    }
    void publish(const QByteArray& record) {
        messages.push_back(QString::fromUtf8(record));
        for (QWebSocket* socket : findChildren<QWebSocket*>())
            socket->sendTextMessage(messages.back());
    }

private:
    std::vector<QString> messages;
    quint16 port = 0;
};

}  // namespace wirepane
