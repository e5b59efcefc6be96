// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_client.h"
#include "backend/store/stored_day.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace wirepane {

struct ReplayOptions {
    double speed = 60;      // seconds of the day in a second; 0: as fast as the terminal takes it
    std::int64_t from = 0;  // news before this moment is played at once
    bool asNew = false;     // every item as news of this moment, beside what the terminal has
    QString run;            // the name of this run, unique
};

// Plays the news of a stored day into a terminal, in its order and with its pauses. What falls due during a
// break of the connection comes when it is back.
class Replay : public QObject {
    Q_OBJECT

public:
    // Both are not owned and outlive the replay.
    Replay(StoredDay& day, FeedClient& client, ReplayOptions options);

    // From now on.
    void start();
    std::size_t played() const { return next; }
    // The moment of the day that is being played, in seconds since 1970.
    std::int64_t moment() const;

signals:
    // The terminal has all of it on the disk.
    void finished();
    void failed(const QString& sentence);

private:
    void playDue();
    bool play(std::size_t index);

    StoredDay& day;
    FeedClient& client;
    ReplayOptions options;
    std::size_t next = 0;
    QElapsedTimer running;
    QTimer ticking;
};

}  // namespace wirepane
