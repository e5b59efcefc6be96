// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_client.h"
#include "backend/feed/queued_source.h"
#include "backend/store/stored_day.h"

#include <QObject>

#include <chrono>

namespace wirepane {

struct ReplayOptions {
    double speed = 60;      // seconds of the day in a second; 0: as fast as the terminal takes it
    std::int64_t from = 0;  // news before this moment is played at once
    bool asNew = false;     // every item as news of this moment, beside what the terminal has
    QString run;            // the name of this run, unique
};

// Reads the news of a stored day in its order and with its pauses. The position behind an item, which is also
// its place, is how many have been read with it.
class ReplayReader : public SourceReader {
public:
    using Clock = std::chrono::steady_clock;

    // The day is not owned, outlives the reader and is used by nobody else while it runs. The replay has
    // begun at `begin`.
    ReplayReader(StoredDay& day, ReplayOptions options, Clock::time_point begin);

    void run(const QString& position, SourceQueue& queue) override;

private:
    Clock::time_point dueTime(std::size_t index) const;
    Done readDue(std::size_t& next, SourceBatch& batch);

    StoredDay& day;
    ReplayOptions options;
    Clock::time_point begin;
};

// Plays the news of a stored day into a terminal. What falls due during an outage of the connection comes
// when it is back.
class Replay : public QObject, private SourceTaker {
    Q_OBJECT

public:
    // Both are not owned and outlive the replay.
    Replay(StoredDay& day, FeedClient& client, ReplayOptions options);

    // From now on.
    void start();
    std::size_t played() const { return sent; }
    // The moment of the day that is being played, in seconds since 1970.
    std::int64_t moment() const;

signals:
    // The terminal has all of it on the disk.
    void finished();
    void failed(const QString& sentence);

private:
    void sourceReady(FeedSource& source) override;
    void sourceStateChanged(FeedSource& source) override;
    void sendNext();

    StoredDay& day;
    FeedClient& client;
    ReplayOptions options;
    ReplayReader::Clock::time_point begin;
    std::unique_ptr<QueuedSource> source;  // from start() on
    bool isUnderWay = false;               // the batch at hand
    std::size_t sent = 0;
};

}  // namespace wirepane
