// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/feed/feed_client.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int retryMs = 250;
constexpr std::size_t window = 2000;  // lines on the way at a time

}  // namespace

FeedClient::FeedClient(QString socketName, FeedHello greeting, QObject* parent)
    : QObject(parent), name(std::move(socketName)), hello(std::move(greeting)) {
    again.setSingleShot(true);
    connect(&again, &QTimer::timeout, this, &FeedClient::connectAgain);
    connect(&socket, &QLocalSocket::connected, this, &FeedClient::greet);
    connect(&socket, &QLocalSocket::readyRead, this, &FeedClient::receive);
    connect(&socket, &QLocalSocket::disconnected, this, [this] {
        receive();
        isGreeted = false;
        emit connectionLost();
        again.start(retryMs);
    });
    connect(&socket, &QLocalSocket::errorOccurred, this, [this](QLocalSocket::LocalSocketError) {
        // A connection that breaks tells so in another way.
        if (isGreeted || again.isActive())
            return;
        if (!wasConnected && --triesLeft <= 0)
            emit failed(u"No terminal takes a feed under the name %1."_s.arg(name));
        else
            again.start(retryMs);
    });
}

FeedClient::~FeedClient() {
    // Closing tells of a broken connection, which nobody is here to hear.
    socket.disconnect(this);
}

void FeedClient::start(int triesAtFirst) {
    triesLeft = triesAtFirst;
    connectAgain();
}

void FeedClient::connectAgain() {
    socket.abort();
    socket.connectToServer(name);
}

void FeedClient::greet() {
    wasConnected = true;
    splitter = {};
    sent = 0;
    confirmedLines = 0;
    socket.write(helloLine(hello));
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
        static_cast<std::size_t>(std::clamp<qint64>(taken - confirmedLines, 0, static_cast<qint64>(sent)));
    confirmedLines += static_cast<qint64>(fresh);
    lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(fresh));
    sent -= fresh;
    sum += {answer["takenIn"_L1].toInteger(), answer["alreadyThere"_L1].toInteger(),
            answer["rejected"_L1].toInteger()};
    const QJsonArray rejections = answer["rejections"_L1].toArray();
    for (const auto& rejection : rejections)
        emit rejected(rejection["place"_L1].toString(), rejection["reason"_L1].toString());
    emit confirmed();
    sendMore();
}

void FeedClient::startFrom(const QString& position) {
    const auto kept = std::find_if(lines.begin(), lines.end(), [&](const Line& line) {
        return !position.isEmpty() && line.position == position;
    });
    if (kept != lines.end()) {
        // They reached the disk; only the word of it was lost.
        sum.takenIn += kept - lines.begin() + 1;
        lines.erase(lines.begin(), kept + 1);
    }
    isGreeted = true;
    emit connectionMade();
    emit confirmed();
    sendMore();
}

void FeedClient::send(const QByteArray& line, const QString& position) {
    lines.push_back({line, position});
    sendMore();
}

void FeedClient::sendMore() {
    while (isGreeted && sent < std::min(window, lines.size())) {
        socket.write(lines[sent].text);
        socket.write("\n");
        ++sent;
    }
}

}  // namespace wirepane
