// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/line_source.h"

#include <QObject>
#include <QPointer>

namespace wirepane {

class LineChannel;

// What the sender of a feed is told of lines that are on the disk, as a line.
QByteArray receiptLine(const LineSource::Receipt& receipt);
// The answer to a greeting: the position that is kept.
QByteArray positionLine(const QString& position);

// A client that sends a feed over a channel: its lines become a source, and it is told how far it has been
// taken. To its greeting it is answered {"position": TEXT}, the position kept for its source; to what is on
// the disk, {"lines": so far, "takenIn": n, "alreadyThere": n, "rejected": n, "rejections": [{"place",
// "reason"}]}; and {"error": TEXT} when the store cannot say.
class FeedConnection : public QObject {
    Q_OBJECT

public:
    // The sink is not owned and outlives the connection.
    FeedConnection(LineChannel* channel, FeedSink& sink, QObject* parent);

    LineSource& source() { return lines; }
    // The client is gone, and all that it sent has been taken.
    bool isDone() { return hasEnded && !lines.hasPortion(); }

signals:
    // Lines are at hand.
    void ready();

private:
    void greet(const FeedHello& hello);
    void holdWhenFull();
    void send(const QByteArray& line);

    QPointer<LineChannel> channel;
    FeedSink& sink;
    LineSource lines;
    bool hasEnded = false;
};

}  // namespace wirepane
