// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_line.h"
#include "backend/feed/feed_source.h"

#include <QByteArray>

#include <deque>
#include <functional>

namespace wirepane {

// A source whose lines come by a pipe or a socket, in the form of feed_line.h. Lines are counted from 1 on,
// the handshake apart.
class LineSource : public FeedSource {
public:
    // What the sender is told when lines are on the disk.
    struct Acknowledgement {
        qint64 lines = 0;  // of all so far
        BatchOutcome outcome;
    };

    // `service` is that of records before which no handshake names one.
    explicit LineSource(unsigned char service = 1) { handshake.service = service; }

    // The next line; a handshake counts only before the first item.
    void add(const QByteArray& line);
    // In place of a line that was passed over.
    void addRejected(const Error& reason);
    // Forgets the lines that wait.
    void drop();
    // Enough waits for a while: whoever brings lines had better stop until some are acknowledged.
    bool isFull() const { return lines.size() >= mostWaiting || waitingBytes >= mostWaitingBytes; }

    void onAcknowledged(std::function<void(const Acknowledgement&)> callback) { tell = std::move(callback); }

    QString name() const override { return handshake.source; }
    // Who has shaken hands is to be told its position; what comes after it is the sender's business.
    bool awaitsPosition() const override { return isAwaiting; }
    void resume(const Result<QString>&) override { isAwaiting = false; }
    bool hasBatch() override { return !lines.empty(); }
    std::shared_ptr<FeedBatch> batch() override;
    void acknowledge(const BatchOutcome& outcome) override;

private:
    struct Line {
        Result<QByteArray> text;
        FeedBatch::Clock::time_point received = FeedBatch::Clock::now();
    };
    static constexpr std::size_t mostWaiting = 4000;  // lines
    static constexpr qint64 mostWaitingBytes = 512 * 1024;

    FeedHandshake handshake;
    std::deque<Line> lines;
    qint64 waitingBytes = 0;
    std::size_t linesOfBatch = 0;  // that was handed out last
    qint64 acknowledged = 0;       // lines
    bool begun = false;            // the first line has come
    bool isAwaiting = false;       // its position
    std::function<void(const Acknowledgement&)> tell;
};

}  // namespace wirepane
