// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QHostAddress>
#include <QPointer>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <vector>

namespace wirepane {

// A server on the loopback that says exactly what it is told, right or wrong.
class FaultServer : public QTcpServer {
public:
    struct Seen {
        QByteArray path;
        QHash<QByteArray, QByteArray> headers;  // by names in lower case
    };
    struct Reply {
        QByteArray bytes;    // as they go over the wire
        bool closes = true;  // then
        int drips = 0;       // bytes at a time, ten times a second; 0: all at once
        int delayMs = 0;
    };
    using Answer = std::function<Reply(const Seen&)>;

    explicit FaultServer(Answer given) : answer(std::move(given)) { listen(QHostAddress::LocalHost); }

    QUrl url(const QString& path = QStringLiteral("/feed")) const {
        return QUrl(QStringLiteral("%1://localhost:%2%3")
                        .arg(tls.isNull() ? QStringLiteral("http") : QStringLiteral("https"))
                        .arg(serverPort())
                        .arg(path));
    }
    void useTls(const QSslConfiguration& configuration) { tls = configuration; }

    // A whole answer of this status with these further lines of its head.
    static Reply whole(const QByteArray& status, const QByteArray& lines, const QByteArray& body) {
        return {"HTTP/1.1 " + status + "\r\n" + lines + "Content-Length: " + QByteArray::number(body.size()) +
                    "\r\n\r\n" + body,
                false};
    }

    std::vector<Seen> seen;
    QByteArray nameAsked;  // by the last TLS connection
    int connections = 0;
    int atOnce = 0;  // requests that are being answered
    int mostAtOnce = 0;

protected:
    void incomingConnection(qintptr descriptor) override {
        ++connections;
        auto* socket = new QSslSocket(this);
        socket->setSocketDescriptor(descriptor);
        connect(socket, &QSslSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
        if (!tls.isNull()) {
            socket->setSslConfiguration(tls);
            socket->startServerEncryption();
        }
    }

private:
    void read(QSslSocket* socket) {
        QByteArray& text = heads[socket];
        text += socket->readAll();
        const qsizetype end = text.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        Seen request;
        const QList<QByteArray> lines = text.left(end).split('\n');
        request.path = lines.front().split(' ').value(1);
        for (const QByteArray& line : lines.mid(1)) {
            const qsizetype colon = line.indexOf(':');
            request.headers.insert(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
        }
        text.clear();
        seen.push_back(request);
        mostAtOnce = std::max(mostAtOnce, ++atOnce);
        const Reply reply = answer(request);
        QTimer::singleShot(reply.delayMs, socket, [this, socket, reply] { send(socket, reply, 0); });
    }
    void send(QSslSocket* socket, const Reply& reply, qsizetype from) {
        const qsizetype part = reply.drips > 0 ? reply.drips : reply.bytes.size();
        socket->write(reply.bytes.mid(from, part));
        if (from + part < reply.bytes.size()) {
            QTimer::singleShot(100, socket, [=, this] { send(socket, reply, from + part); });
            return;
        }
        --atOnce;
        if (reply.closes)
            socket->disconnectFromHost();
    }

    Answer answer;
    QSslConfiguration tls;
    QHash<QSslSocket*, QByteArray> heads;
};

}  // namespace wirepane
