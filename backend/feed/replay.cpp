// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/replay.h"

#include "backend/feed/feed_errors.h"
#include "backend/feed/feed_line.h"
#include "host/contract/clock.h"

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

// Of a batch: so much is sent before the terminal has acknowledged what went before it.
constexpr std::size_t mostItems = 1000;
constexpr qsizetype mostCharacters = 512 * 1024;  // of stories, about

}  // namespace

ReplayReader::ReplayReader(StoredDay& stored, ReplayOptions replayOptions, Clock::time_point start)
    : day(stored), options(std::move(replayOptions)), begin(start) {}

ReplayReader::Clock::time_point ReplayReader::dueTime(std::size_t index) const {
    const std::int64_t after = day.timeOf(index) - options.from;
    if (options.speed <= 0 || after <= 0)
        return begin;
    const std::chrono::duration<double> wait(static_cast<double>(after) / options.speed);
    return begin + std::chrono::duration_cast<Clock::duration>(wait);
}

void ReplayReader::run(const QString& position, SourceQueue& queue) {
    queue.tell(SourceState::Live);
    for (std::size_t next = position.toULongLong(); next < day.size();) {
        if (!queue.waitUntil(dueTime(next)))
            return;
        SourceBatch batch;
        const Done read = readDue(next, batch);
        if (!batch.items.empty() && !queue.push(std::move(batch)))
            return;
        if (!read) {
            queue.tell(SourceState::Failed, read.error());
            return;
        }
    }
}

Done ReplayReader::readDue(std::size_t& next, SourceBatch& batch) {
    const Clock::time_point now = Clock::now();
    qsizetype characters = 0;
    while (next < day.size() && dueTime(next) <= now && batch.items.size() < mostItems &&
           characters < mostCharacters) {
        Result<NewsItem> item = day.item(next);
        if (!item)
            return item.error();
        NewsItem& news = item.value();
        if (options.asNew) {
            news.identity = options.run + u':' + news.identity;
            news.time = host_clock::now();
            news.sequence.reset();
        }
        characters += news.story ? news.story->size() : 0;
        batch.position = QString::number(++next);
        batch.items.push_back(
            {StoreItem(std::move(news)), makeError<feed_errors::atPosition>(batch.position), 0});
    }
    return Nothing{};
}

Replay::Replay(StoredDay& stored, FeedClient& feed, ReplayOptions replayOptions)
    : day(stored), client(feed), options(std::move(replayOptions)) {
    connect(&client, &FeedClient::acknowledged, this, &Replay::sendNext);
}

void Replay::start() {
    if (day.size() > 0)
        options.from = std::max(options.from, day.timeOf(0));
    begin = ReplayReader::Clock::now();
    source = std::make_unique<QueuedSource>(options.run, std::make_unique<ReplayReader>(day, options, begin));
    source->setTaker(this);
    source->resume(QString());
}

std::int64_t Replay::moment() const {
    if (options.speed <= 0)
        return std::numeric_limits<std::int64_t>::max();
    const std::chrono::duration<double> running =
        source ? ReplayReader::Clock::now() - begin : ReplayReader::Clock::duration(0);
    return options.from + static_cast<std::int64_t>(running.count() * options.speed);
}

void Replay::sourceReady(FeedSource&) {
    sendNext();
}

void Replay::sourceStateChanged(FeedSource& changed) {
    if (changed.state().kind == SourceState::Failed)
        emit failed(sentence(*changed.state().reason));
}

// A batch is done with when the terminal has all of it.
void Replay::sendNext() {
    if (!source || client.unacknowledged() > 0)
        return;
    if (std::exchange(isUnderWay, false)) {
        source->acknowledge({});
        // Which may have sent the next one.
        if (isUnderWay)
            return;
    }
    if (source->hasBatch()) {
        isUnderWay = true;
        source->batch()->read([this](SourceItem&& item) {
            const QString position = sentence(item.place);
            client.send(itemLine(std::get<NewsItem>(item.content.value()), position).chopped(1), position);
            ++sent;
            return true;
        });
    } else if (source->isDone()) {
        emit finished();
    }
}

}  // namespace wirepane
