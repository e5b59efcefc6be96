// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/live_feed.h"

#include "backend/store/embedded_back_end.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"

#include <QPointer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int tickMs = 250;
constexpr int retryMs = 2000;  // after the store could not be written
constexpr std::chrono::milliseconds shortPatience{20};
constexpr qint64 longestReturnMs = 3000;  // of clients, after a break

}  // namespace

LiveFeed::LiveFeed(EmbeddedBackEnd& store) : backEnd(store) {
    connect(&ticking, &QTimer::timeout, this, &LiveFeed::tick);
    ticking.start(tickMs);
    pumping.setSingleShot(true);
    connect(&pumping, &QTimer::timeout, this, &LiveFeed::pump);
}

Done LiveFeed::watch(const QString& spoolFolder, const SpoolOptions& options) {
    auto opened = SpoolSource::open(spoolFolder, options);
    if (!opened)
        return opened.error();
    spool = std::move(opened.value());
    spool->onTrouble([this](const QString& sentence) { emit trouble(sentence); });
    pumpSoon();
    return Nothing{};
}

Done LiveFeed::listen(const QString& name) {
    socketName = name;
    return openSocket();
}

Done LiveFeed::openSocket() {
    if (socketName.isEmpty())
        return Nothing{};
    server = std::make_unique<SocketServer>();
    connect(server.get(), &SocketServer::connected, this, [this](LineChannel* channel) {
        connections.push_back(std::make_shared<FeedConnection>(channel, backEnd, nullptr));
        connect(connections.back().get(), &FeedConnection::ready, this, &LiveFeed::pumpSoon);
    });
    return server->listen(socketName);
}

void LiveFeed::setConnected(bool connected) {
    if (connected == isConnected)
        return;
    isConnected = connected;
    if (!connected) {
        clientsBefore = connections.size();
        connections.clear();
        std::erase_if(settling, [this](const auto& entry) { return entry.first != spool.get(); });
        server.reset();
        backEnd.setConnected(false);
    } else {
        isCatchingUp = true;
        sinceBreak.start();
        takenLate = 0;
        backEnd.setConnected(true);
        if (const Done opened = openSocket(); !opened)
            emit trouble(sentence(opened.error()));
        pumpSoon();
    }
    updateState();
}

bool LiveFeed::isIdle() {
    const bool isFed = isConnected && !hasTrouble() &&
                       ((spool && spool->hasPortion()) ||
                        std::any_of(connections.begin(), connections.end(), [](const auto& connection) {
                            return connection->source().hasPortion();
                        }));
    return !isFed && (!isConnected || backEnd.isDelivered());
}

void LiveFeed::tick() {
    const QString lostBefore = std::exchange(lostStore, backEnd.storeTrouble());
    if (lostBefore.isEmpty() && !lostStore.isEmpty())
        emit trouble(lostStore);
    if (isConnected) {
        backEnd.checkForNews();
        if (spool && spool->hasPortion())
            pumpSoon();
    }
    isCatchingUp = isCatchingUp && !hasCaughtUp();
    updateState();
}

void LiveFeed::pumpSoon() {
    if (!pumping.isActive())
        pumping.start(hasTrouble() ? retryMs : 0);
}

// One portion a turn, so that the windows stay alive; the next turn when this one did anything.
void LiveFeed::pump() {
    // A view that is told may open a dialog, whose loop comes by here.
    if (!isTaking) {
        if (isConnected && pumpOne())
            pumpSoon();
        dropDoneConnections();
    }
    updateState();
}

// The sources take turns.
bool LiveFeed::pumpOne() {
    const std::size_t all = connections.size() + 1;
    for (std::size_t i = 0; i < all; ++i) {
        const std::size_t at = (turn + i) % all;
        FeedSource* source = spool.get();
        if (at > 0)
            source = &connections[at - 1]->source();
        if (source == nullptr || !isReady(*source))
            continue;
        turn = at + 1;
        // Whoever is told of the news may send the clients off.
        const auto here = std::vector(connections);
        take(*source);
        return true;
    }
    return false;
}

void LiveFeed::take(FeedSource& source) {
    isTaking = true;
    // The windows must not stand still while another program writes.
    backEnd.setPatience(shortPatience);
    const Result<PortionOutcome> taken = takePortion(source, backEnd);
    backEnd.setPatience(StoreOptions().busyTimeout);
    isTaking = false;
    tellTrouble(taken ? QString() : sentence(taken.error()));
    if (taken) {
        takenLate += isCatchingUp ? taken.value().news : 0;
        settleWhenOnDisk(source, taken.value());
    }
}

void LiveFeed::settleWhenOnDisk(FeedSource& source, const PortionOutcome& outcome) {
    // A receiver that was told may have sent the clients off.
    const bool isHere = &source == spool.get() ||
                        std::any_of(connections.begin(), connections.end(),
                                    [&](const auto& connection) { return &connection->source() == &source; });
    if (!isHere)
        return;
    settling[&source] = ++portions;
    awaitDisk(source, outcome, portions);
}

void LiveFeed::awaitDisk(FeedSource& source, const PortionOutcome& outcome, int portion) {
    backEnd.whenOnDisk([this, self = QPointer(this), &source, outcome, portion](const Done& onDisk) {
        if (self.isNull())
            return;
        const auto waiting = settling.find(&source);
        if (waiting == settling.end() || waiting->second != portion)
            return;
        tellTrouble(onDisk ? QString() : sentence(onDisk.error()));
        if (!onDisk) {
            QTimer::singleShot(retryMs, this,
                               [this, &source, outcome, portion] { awaitDisk(source, outcome, portion); });
            return;
        }
        settling.erase(waiting);
        source.settle(outcome);
        pumpSoon();
    });
}

// Another program that writes for a moment is nothing to tell; what stands in the way twice is.
void LiveFeed::tellTrouble(const QString& now) {
    const QString before = std::exchange(takeTrouble, now);
    const bool lasts = !now.isEmpty() && now == before;
    if (lasts && !isTold && lostStore.isEmpty())
        emit trouble(now);
    isTold = lasts;
}

void LiveFeed::dropDoneConnections() {
    std::erase_if(connections, [](const auto& connection) { return connection->isDone(); });
}

// The clients of before are waited for, for a while.
bool LiveFeed::hasCaughtUp() {
    const bool areBack = connections.size() >= clientsBefore || sinceBreak.elapsed() > longestReturnMs;
    return isConnected && areBack && isIdle();
}

void LiveFeed::updateState() {
    FeedState now = current;
    now.kind = !isConnected                   ? FeedState::Offline
               : backEnd.isReadOnly()         ? FeedState::OnlyRead
               : isCatchingUp || hasTrouble() ? FeedState::Reconnecting
                                              : FeedState::Live;
    if (now.kind != current.kind)
        now.since = host_clock::now();
    now.late = backEnd.lateHeadlines() + static_cast<int>(takenLate);
    now.trouble = lostStore.isEmpty() ? takeTrouble : lostStore;
    if (now == current)
        return;
    current = now;
    emit stateChanged();
}

}  // namespace wirepane
