// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_connection.h"
#include "backend/feed/spool_source.h"
#include "backend/lines/socket_server.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <map>
#include <memory>
#include <vector>

namespace wirepane {

class EmbeddedBackEnd;

// How the terminal stands to its sources of news.
struct FeedState {
    enum Kind {
        Live,
        Reconnecting,  // taking what a break kept away, or waiting for a store that cannot be written
        Offline,
        OnlyRead,  // the store can only be read: no news comes by itself
    };
    Kind kind = Live;
    std::int64_t since = 0;  // when it came to be so, seconds since 1970; 0: from the start
    int late = 0;            // items that came late after the last break
    QString trouble;         // why the store cannot be written; empty: it can

    bool operator==(const FeedState&) const = default;
};

// The live news of a running terminal: takes in what a spool folder and the clients of a local socket bring,
// a portion at a time so that the windows stay alive, and passes on what other programs write to the store.
// Interface thread.
class LiveFeed : public QObject {
    Q_OBJECT

public:
    // The back end is not owned and outlives the feed.
    explicit LiveFeed(EmbeddedBackEnd& backEnd);

    Done watch(const QString& spoolFolder, const SpoolOptions& options = {});
    // Serves feeds on a local socket that only the same user may open.
    Done listen(const QString& socketName);

    // A break keeps everything away: files stay in the spool, clients are sent off and may come again after
    // it. What came to the store meanwhile is told when it is over, oldest first.
    void setConnected(bool connected);
    FeedState state() const { return current; }
    // Nothing is at hand, and everybody has been told of everything.
    bool isIdle();

signals:
    void stateChanged();
    // A sentence about a file of the spool, or about a store that takes nothing in for longer than a moment.
    void trouble(const QString& sentence);

private:
    void tick();
    void pumpSoon();
    void pump();
    bool pumpOne();
    void take(FeedSource& source);
    void settleWhenOnDisk(FeedSource& source, const PortionOutcome& outcome);
    void awaitDisk(FeedSource& source, const PortionOutcome& outcome, int portion);
    bool isSettling(FeedSource& source) const { return settling.contains(&source); }
    bool isReady(FeedSource& source) const { return !isSettling(source) && source.hasPortion(); }
    bool hasCaughtUp();
    void tellTrouble(const QString& now);
    void dropDoneConnections();
    bool hasTrouble() const { return !takeTrouble.isEmpty() || !lostStore.isEmpty(); }
    void updateState();
    Done openSocket();

    EmbeddedBackEnd& backEnd;
    std::unique_ptr<SpoolSource> spool;
    QString socketName;
    std::unique_ptr<SocketServer> server;
    std::vector<std::shared_ptr<FeedConnection>> connections;
    std::size_t turn = 0;                 // whose it is to be taken: 0 the spool's, then the connections'
    std::map<FeedSource*, int> settling;  // by source: its portion that is on the way to the disk
    int portions = 0;                     // taken so far
    QTimer ticking;
    QTimer pumping;
    QString takeTrouble;  // of the last portion
    bool isTold = false;  // that trouble is
    QString lostStore;    // the store is not where it was
    bool isConnected = true;
    bool isCatchingUp = false;
    std::size_t clientsBefore = 0;  // the break
    QElapsedTimer sinceBreak;       // since its end
    qint64 takenLate = 0;           // while catching up
    bool isTaking = false;
    FeedState current;
};

}  // namespace wirepane
