// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/delay_window.h"
#include "backend/feed/feed_source.h"
#include "backend/feed/number_gaps.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <map>
#include <memory>
#include <vector>

namespace wirepane {
class EmbeddedBackEnd;
struct SourceKind;

// How the terminal stands to its sources of news.
struct FeedState {
    enum Kind {
        Live,
        Reconnecting,  // taking what an outage kept away, or waiting for a store that cannot be written
        Offline,
        OnlyRead,  // the store can only be read: no news comes by itself
    };
    Kind kind = Live;
    std::int64_t since = 0;        // when it came to be so, seconds since 1970; 0: from the start
    int late = 0;                  // items that came late after the last outage
    std::optional<Error> trouble;  // why the store cannot be written; nothing: it can

    bool operator==(const FeedState&) const = default;
};

// One of the sources, as it is shown.
struct SourceReport {
    QString name;
    SourceState state;
    QString title = name;  // what its reader calls it
};

// How long news of a source took in the last hour.
struct SourceDelays {
    QString name;
    DelayWindow::Figures toReceipt;  // from its publishing, which is known to the second
    DelayWindow::Figures toStore;    // from its receipt
};

// The live news of a running terminal: owns the sources, lets each go on where it was, and has what they
// bring taken in on the store's thread, one batch of each at a time. The store is watched as a source like
// the others. Interface thread.
class LiveFeed : public QObject, private SourceTaker {
    Q_OBJECT

public:
    // The back end is not owned and outlives the feed.
    explicit LiveFeed(EmbeddedBackEnd& backEnd);
    ~LiveFeed() override;

    // Opens a source of this kind. One that is there but fails is tried again after an outage.
    Done open(const SourceKind& kind, const QString& value);
    void addSource(const std::shared_ptr<FeedSource>& source) override;
    // Those that have a name, in the order in which they came.
    std::vector<SourceReport> sources() const;
    // Of all that have brought news within the hour, by name; sources without one have an empty one.
    std::vector<SourceDelays> delays() const;

    // An outage keeps everything away: files stay in the spool, clients are sent off and may come
    // again after it. What came to the store meanwhile is told when it is over, oldest first.
    void setConnected(bool connected);
    FeedState state() const { return current; }
    // Nothing is at hand, and everybody has been told of everything.
    bool isIdle();

signals:
    void stateChanged();
    // Another source, or another state of one.
    void sourcesChanged();
    // A source that numbers its news has left numbers out, or has brought some of them since; as it is shown.
    void numbersMissing(const QString& source, const wirepane::NumberGaps& gaps);
    // About a source, or about a store that takes nothing in for longer than a moment.
    void trouble(const wirepane::Error& error);

private:
    struct Entry {
        std::shared_ptr<FeedSource> source;
        int batch = 0;          // that is being taken or flushed; 0: none
        bool isAsking = false;  // for its position
    };

    void sourceReady(FeedSource& source) override;
    void sourceStateChanged(FeedSource& source) override;
    void sourceTrouble(const Error& error) override;
    void tick();
    void pumpSoon();
    void pump();
    bool pumpOne();
    void resume(const std::shared_ptr<FeedSource>& source);
    void take(const std::shared_ptr<FeedSource>& source);
    // A batch that the store has taken, or not.
    struct Taken {
        Result<BatchOutcome> outcome = BatchOutcome();
        FeedBatch::Clock::time_point received;
        FeedBatch::Clock::time_point stored;
    };
    void noteTaken(const std::shared_ptr<FeedSource>& source, const Taken& taken, int batch);
    void noteDelays(const FeedSource& source, const Taken& taken);
    void awaitDisk(const std::shared_ptr<FeedSource>& source, const BatchOutcome& outcome, int batch);
    void acknowledge(const std::shared_ptr<FeedSource>& source, const BatchOutcome& outcome, int batch,
                     const Done& onDisk);
    void noteNumbers(const FeedSource& source, const std::vector<std::int64_t>& numbers);
    Entry* entryOf(const FeedSource& source);
    bool hasCaughtUp();
    void tellTrouble(const std::optional<Error>& now);
    void dropDoneSources();
    // Why the store takes nothing in, found out without trying; nothing: it does.
    const std::optional<Error>& lostStore() const { return entries.front().source->state().reason; }
    bool hasTrouble() const { return takeTrouble || lostStore(); }
    void updateState();

    EmbeddedBackEnd& backEnd;
    std::vector<Entry> entries;  // the store's watch first
    std::size_t turn = 0;        // whose it is to be taken
    int batches = 0;             // handed to the store so far
    QTimer ticking;
    QTimer pumping;
    struct Delays {
        DelayWindow toReceipt;
        DelayWindow toStore;
    };
    std::map<QString, NumberGaps> gaps;  // by the names of sources, over outages
    std::map<QString, Delays> delaysOf;  // the same
    std::optional<Error> takeTrouble;    // of the last batch
    bool isTold = false;                 // that trouble is
    bool isConnected = true;
    bool isCatchingUp = false;
    std::size_t sourcesBefore = 0;  // the outage
    QElapsedTimer sinceOutage;      // since its end
    qint64 takenLate = 0;           // while catching up
    FeedState current;
};

}  // namespace wirepane
