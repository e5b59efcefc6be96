// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_line.h"
#include "backend/import/import_job.h"
#include "backend/lines/line_splitter.h"

#include <QLocalSocket>
#include <QObject>
#include <QTimer>

#include <deque>

namespace wirepane {

// Sends a feed to a terminal and keeps each line until the terminal has it on the disk: when the connection
// breaks it comes again, and what was not acknowledged is sent again, from the position that the terminal
// names.
class FeedClient : public QObject {
    Q_OBJECT

public:
    FeedClient(QString socketName, FeedHandshake handshake, QObject* parent = nullptr);
    ~FeedClient() override;

    // Gives up when nobody has answered after so many tries, four a second; a connection that was made once
    // is tried again for ever.
    void start(int triesAtFirst);
    // A line without its line feed. `position`: that of its item, if it has one.
    void send(const QByteArray& line, const QString& position = {});
    // Lines that are not acknowledged.
    std::size_t unacknowledged() const { return lines.size(); }
    // Enough is not acknowledged: whoever sends had better wait.
    bool isFull() const;
    const ImportTotals& totals() const { return sum; }

signals:
    // The terminal has acknowledged lines.
    void acknowledged();
    // `place` counts the lines since the connection was made.
    void rejected(const QString& place, const QString& reason);
    void connectionLost();
    void connectionMade();
    // Nobody answers, or the terminal refuses.
    void failed(const QString& sentence);

private:
    static constexpr std::size_t mostUnacknowledged = 5000;
    static constexpr qint64 mostUnacknowledgedBytes = 4 * 1024 * 1024;

    struct Line {
        QByteArray text;
        QString position;
    };

    void connectAgain();
    void tryAgain();
    void shakeHands();
    void receive();
    void answered(const QByteArray& answer);
    void startFrom(const QString& position);
    void forget(std::size_t count);
    void sendMore();

    QString name;
    FeedHandshake handshake;
    QLocalSocket socket;
    QTimer again;
    LineSplitter splitter;
    std::deque<Line> lines;  // the oldest that is not acknowledged first
    qint64 lineBytes = 0;    // of all of them
    std::size_t sent = 0;    // of these, on the way
    qint64 sentBytes = 0;
    qint64 acknowledgedLines = 0;  // of this connection
    bool hasShakenHands = false;
    bool wasConnected = false;
    int triesLeft = 0;
    ImportTotals sum;
};

}  // namespace wirepane
