// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_connection.h"

#include "backend/lines/line_channel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The windows wait for a portion, and are to answer the user within a twentieth of a second.
constexpr std::chrono::milliseconds longestTaking{20};

QByteArray lineOf(const QJsonObject& answer) {
    return QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n';
}

}  // namespace

QByteArray positionLine(const QString& position) {
    return lineOf({{u"position"_s, position}});
}

QByteArray receiptLine(const LineSource::Receipt& receipt) {
    QJsonArray rejections;
    for (const Rejection& rejection : receipt.outcome.rejections)
        rejections.append(
            QJsonObject{{u"place"_s, sentence(*rejection.place)}, {u"reason"_s, sentence(rejection.reason)}});
    const ImportTotals& totals = receipt.outcome.totals;
    return lineOf({{u"lines"_s, receipt.lines},
                   {u"takenIn"_s, totals.takenIn},
                   {u"alreadyThere"_s, totals.alreadyThere},
                   {u"rejected"_s, totals.rejected},
                   {u"rejections"_s, rejections}});
}

FeedConnection::FeedConnection(LineChannel* client, FeedSink& feedSink, QObject* parent)
    : QObject(parent), channel(client), sink(feedSink), lines(1, longestTaking) {
    lines.onHello([this](const FeedHello& hello) { greet(hello); });
    lines.onReceipt([this](const LineSource::Receipt& receipt) {
        send(receiptLine(receipt));
        holdWhenFull();
    });
    connect(client, &LineChannel::lineReceived, this, [this](const QByteArray& line) {
        lines.add(line);
        holdWhenFull();
        if (lines.hasPortion())
            emit ready();
    });
    connect(client, &LineChannel::lineTooLong, this, [this] {
        lines.addRejected(
            u"The line is longer than %1 MiB."_s.arg(LineSplitter::longestLine / (1024 * 1024)));
        emit ready();
    });
    connect(client, &LineChannel::ended, this, [this] {
        hasEnded = true;
        emit ready();
    });
}

void FeedConnection::greet(const FeedHello& hello) {
    const Result<QString> position = hello.source.isEmpty() ? QString() : sink.positionOf(hello.source);
    send(position ? positionLine(position.value()) : lineOf({{u"error"_s, sentence(position.error())}}));
}

// A sender that is faster than the disk waits for it.
void FeedConnection::holdWhenFull() {
    if (channel)
        channel->setHeld(lines.isFull());
}

void FeedConnection::send(const QByteArray& line) {
    if (channel)
        channel->send(line);
}

}  // namespace wirepane
