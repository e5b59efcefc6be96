// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <gtest/gtest.h>

namespace wirepane::test {

// Answers requests over http on this machine, each path with what was put there. Takes connections while it
// listens; the port stays when it is unplugged.
class LoopbackServer : public QTcpServer {
public:
    LoopbackServer() {
        QObject::connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = nextPendingConnection())
                QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(*socket); });
        });
        plugIn();
    }

    void put(const QByteArray& path, const QByteArray& body, const QByteArray& type) {
        pages[path] = {body, type};
    }
    QUrl address(const QString& path) const {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(port).arg(path));
    }
    void plugIn() {
        EXPECT_TRUE(listen(QHostAddress::LocalHost, port));
        port = serverPort();
    }
    void unplug() {
        close();
        const auto sockets = findChildren<QTcpSocket*>();
        for (QTcpSocket* socket : sockets)
            socket->abort();
    }

    int requests = 0;

private:
    struct Page {
        QByteArray body;
        QByteArray type;
    };

    void answer(QTcpSocket& socket) {
        QByteArray head = socket.property("head").toByteArray() + socket.readAll();
        if (!head.contains("\r\n\r\n")) {
            socket.setProperty("head", head);
            return;
        }
        socket.setProperty("head", QByteArray());
        ++requests;
        const QByteArray path = head.split(' ').value(1);
        const bool isThere = pages.contains(path);
        const Page page = pages.value(path);
        socket.write((isThere ? "HTTP/1.1 200 OK" : "HTTP/1.1 404 Not Found") +
                     QByteArray("\r\nContent-Type: ") + page.type +
                     "\r\nContent-Length: " + QByteArray::number(page.body.size()) + "\r\n\r\n" + page.body);
    }

    QHash<QByteArray, Page> pages;
    quint16 port = 0;
};

}  // namespace wirepane::test
