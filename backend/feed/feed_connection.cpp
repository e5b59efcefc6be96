// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_connection.h"

#include "backend/feed/feed_errors.h"
#include "backend/lines/line_channel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QByteArray lineOf(const QJsonObject& answer) {
    return QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray acknowledgementLine(const LineSource::Acknowledgement& told) {
    QJsonArray rejections;
    for (const Rejection& rejection : told.outcome.rejections)
        rejections.append(
            QJsonObject{{u"place"_s, sentence(*rejection.place)}, {u"reason"_s, sentence(rejection.reason)}});
    const ImportTotals& totals = told.outcome.totals;
    return lineOf({{u"lines"_s, told.lines},
                   {u"takenIn"_s, totals.takenIn},
                   {u"alreadyThere"_s, totals.alreadyThere},
                   {u"rejected"_s, totals.rejected},
                   {u"rejections"_s, rejections}});
}

}  // namespace

FeedConnection::FeedConnection(LineChannel* sender, unsigned char service, Answers wanted)
    : LineSource(service), channel(sender), answers(wanted) {
    setState(SourceState::Live);
    onAcknowledged([this](const Acknowledgement& told) {
        answer(acknowledgementLine(told));
        holdWhenFull();
    });
    QObject::connect(sender, &LineChannel::lineReceived, &context, [this](const QByteArray& line) {
        add(line);
        holdWhenFull();
        tellReady();
    });
    QObject::connect(sender, &LineChannel::lineTooLong, &context, [this] {
        addRejected(makeError<feed_errors::lineOver>(LineSplitter::longestLine / (1024 * 1024)));
        tellReady();
    });
    QObject::connect(sender, &LineChannel::ended, &context, [this] {
        hasEnded = true;
        setState(SourceState::Offline);
        tellReady();
    });
}

void FeedConnection::resume(const Result<QString>& position) {
    LineSource::resume(position);
    answer(position ? lineOf({{u"position"_s, position.value()}})
                    : lineOf({{u"error"_s, sentence(position.error())}}));
}

void FeedConnection::setOnline(bool on) {
    if (on)
        return;
    // What was not acknowledged the sender sends again.
    if (channel)
        channel->disconnect(&context);
    channel.clear();
    drop();
    hasEnded = true;
}

// A sender that is faster than the disk waits for it.
void FeedConnection::holdWhenFull() {
    if (channel)
        channel->setHeld(isFull());
}

void FeedConnection::answer(const QByteArray& line) {
    if (channel && answers == Answers::All)
        channel->send(line);
}

}  // namespace wirepane
