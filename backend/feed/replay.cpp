// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/replay.h"

#include "backend/feed/feed_line.h"
#include "host/contract/clock.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int tickMs = 20;

}  // namespace

Replay::Replay(StoredDay& stored, FeedClient& feed, ReplayOptions replayOptions)
    : day(stored), client(feed), options(std::move(replayOptions)) {
    connect(&ticking, &QTimer::timeout, this, &Replay::playDue);
    connect(&client, &FeedClient::confirmed, this, [this] {
        if (next == day.size() && client.unconfirmed() == 0) {
            ticking.stop();
            emit finished();
        }
    });
}

void Replay::start() {
    if (day.size() > 0)
        options.from = std::max(options.from, day.timeOf(0));
    running.start();
    ticking.start(tickMs);
}

std::int64_t Replay::moment() const {
    if (options.speed <= 0)
        return std::numeric_limits<std::int64_t>::max();
    return options.from +
           static_cast<std::int64_t>(static_cast<double>(running.elapsed()) * options.speed / 1000);
}

void Replay::playDue() {
    const std::int64_t now = moment();
    while (next < day.size() && day.timeOf(next) <= now && !client.isFull()) {
        if (!play(next))
            return;
        ++next;
    }
}

bool Replay::play(std::size_t index) {
    Result<NewsItem> item = day.item(index);
    if (!item) {
        ticking.stop();
        emit failed(sentence(item.error()));
        return false;
    }
    NewsItem& news = item.value();
    if (options.asNew) {
        news.identity = options.run + u':' + news.identity;
        news.time = host_clock::now();
        news.sequence.reset();
    }
    const QString position = QString::number(index + 1);
    client.send(itemLine(news, position).chopped(1), position);
    return true;
}

}  // namespace wirepane
