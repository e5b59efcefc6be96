// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_client.h"

#include "backend/lines/own_socket.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int retryMs = 250;
// Lines on the way at a time.
constexpr std::size_t window = 2000;
constexpr qint64 windowBytes = 1024 * 1024;

}  // namespace

FeedClient::FeedClient(QString socketName, FeedHandshake itsHandshake, QObject* parent)
    : QObject(parent), name(std::move(socketName)), handshake(std::move(itsHandshake)) {
    again.setSingleShot(true);
    again.setInterval(retryMs);
    connect(&again, &QTimer::timeout, this, &FeedClient::connectAgain);
    connect(&socket, &QLocalSocket::connected, this, &FeedClient::shakeHands);
    connect(&socket, &QLocalSocket::readyRead, this, &FeedClient::receive);
    connect(&socket, &QLocalSocket::disconnected, this, [this] {
        receive();
        hasShakenHands = false;
        emit connectionLost();
        again.start();
    });
    connect(&socket, &QLocalSocket::errorOccurred, this, [this](QLocalSocket::LocalSocketError) {
        // A connection that breaks tells so in another way.
        if (hasShakenHands || again.isActive())
            return;
        tryAgain();
    });
}

FeedClient::~FeedClient() {
    // Closing tells of a broken connection, which nobody is here to hear.
    socket.disconnect(this);
}

void FeedClient::start(int triesAtFirst) {
    triesLeft = triesAtFirst;
    // From the event loop, as everything that may fail.
    QMetaObject::invokeMethod(this, &FeedClient::connectAgain, Qt::QueuedConnection);
}

void FeedClient::tryAgain() {
    if (!wasConnected && --triesLeft <= 0)
        emit failed(u"No terminal takes a feed under the name %1."_s.arg(name));
    else
        again.start();
}

void FeedClient::connectAgain() {
    socket.abort();
    const Result<QString> path = socketPath(name);
    if (path)
        socket.connectToServer(path.value());
    else
        emit failed(sentence(path.error()));
}

void FeedClient::shakeHands() {
    // Whoever has taken the name may be anybody.
    if (!isOwnPeer(socket.socketDescriptor())) {
        const QString path = socket.fullServerName();
        QTimer::singleShot(0, this, [this, path] {
            emit failed(u"The local socket %1 belongs to another user; nothing was sent."_s.arg(path));
        });
        return;
    }
    wasConnected = true;
    splitter = {};
    sent = 0;
    sentBytes = 0;
    acknowledgedLines = 0;
    socket.write(handshakeLine(handshake));
}

void FeedClient::receive() {
    splitter.feed(
        socket.readAll(), [this](const QByteArray& line) { answered(line); }, [] {});
}

void FeedClient::answered(const QByteArray& line) {
    const QJsonObject answer = QJsonDocument::fromJson(line).object();
    if (answer.contains("error"_L1)) {
        emit failed(answer["error"_L1].toString());
        return;
    }
    if (answer.contains("position"_L1)) {
        startFrom(answer["position"_L1].toString());
        return;
    }
    const qint64 taken = answer["lines"_L1].toInteger();
    const auto fresh =
        static_cast<std::size_t>(std::clamp<qint64>(taken - acknowledgedLines, 0, static_cast<qint64>(sent)));
    acknowledgedLines += static_cast<qint64>(fresh);
    forget(fresh);
    sum += {answer["takenIn"_L1].toInteger(), answer["alreadyThere"_L1].toInteger(),
            answer["rejected"_L1].toInteger()};
    const QJsonArray rejections = answer["rejections"_L1].toArray();
    for (const auto& rejection : rejections)
        emit rejected(rejection["place"_L1].toString(), rejection["reason"_L1].toString());
    emit acknowledged();
    sendMore();
}

void FeedClient::startFrom(const QString& position) {
    const auto kept = std::find_if(lines.begin(), lines.end(), [&](const Line& line) {
        return !position.isEmpty() && line.position == position;
    });
    if (kept != lines.end()) {
        // They reached the disk; only the word of it was lost.
        sum.takenIn += kept - lines.begin() + 1;
        forget(static_cast<std::size_t>(kept - lines.begin()) + 1);
    }
    hasShakenHands = true;
    emit connectionMade();
    emit acknowledged();
    sendMore();
}

void FeedClient::send(const QByteArray& line, const QString& position) {
    lineBytes += line.size();
    lines.push_back({line, position});
    sendMore();
}

void FeedClient::forget(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const qint64 size = lines.front().text.size();
        lineBytes -= size;
        if (sent > 0) {
            --sent;
            sentBytes -= size;
        }
        lines.pop_front();
    }
}

bool FeedClient::isFull() const {
    return lines.size() >= mostUnacknowledged || lineBytes >= mostUnacknowledgedBytes;
}

void FeedClient::sendMore() {
    while (hasShakenHands && sent < std::min(window, lines.size()) &&
           (sent == 0 || sentBytes < windowBytes)) {
        const QByteArray& text = lines[sent].text;
        socket.write(text);
        socket.write("\n");
        ++sent;
        sentBytes += text.size();
    }
}

}  // namespace wirepane
