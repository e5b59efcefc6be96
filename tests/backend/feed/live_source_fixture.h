// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/live_feed.h"
#include "backend/feed/queued_source.h"
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "tests/backend/store/listener.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <gtest/gtest.h>
#include <mutex>

namespace wirepane {

inline constexpr ErrorCode entryOfLog{"", u"entry %1"};

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

inline NewsItem numbered(int number) {
    NewsItem item;
    item.service = 1;
    item.identity = u"n:%1"_s.arg(number);
    item.title = u"News %1."_s.arg(number);
    item.time = QDateTime::fromString(u"2026-03-02T11:00:00"_s, Qt::ISODate).toSecsSinceEpoch();
    return item;
}

inline QStringList titlesIn(Database& store) {
    Statement statement(store, "SELECT title FROM headlines ORDER BY id");
    QStringList titles;
    for (Query query(statement); query.next();)
        titles += query.text(0);
    return titles;
}

inline QStringList titlesUpTo(int count) {
    QStringList titles;
    for (int i = 1; i <= count; ++i)
        titles += numbered(i).title;
    return titles;
}

// A log elsewhere, that any number of readers read: entry i is news i + 1.
struct RemoteLog {
    std::atomic<int> size = 0;
    std::atomic<int> pushed = 0;  // batches, by all readers
    std::mutex mutex;
    QStringList positions;  // from which it was read

    qsizetype timesRead() {
        const std::lock_guard lock(mutex);
        return positions.size();
    }
};

class LogReader : public SourceReader {
public:
    explicit LogReader(RemoteLog& remote, int itemsOfBatch = 3) : log(remote), perBatch(itemsOfBatch) {}

    void run(const QString& position, SourceQueue& queue) override {
        {
            const std::lock_guard lock(log.mutex);
            log.positions += position;
        }
        queue.tell(SourceState::Live);
        for (int next = position.toInt(); queue.waitUntil(std::chrono::steady_clock::now() + 1ms);) {
            SourceBatch batch;
            while (next < log.size && std::ssize(batch.items) < perBatch) {
                batch.items.push_back({StoreItem(numbered(++next)), makeError<entryOfLog>(next), 0});
                batch.position = QString::number(next);
            }
            if (batch.items.empty())
                continue;
            if (!queue.push(std::move(batch)))
                return;
            ++log.pushed;
        }
    }

private:
    RemoteLog& log;
    int perBatch;
};

class LiveSourceTest : public testing::Test {
protected:
    LiveSourceTest() {
        host_clock::startAt(QDateTime::fromString(u"2026-03-02T12:00:00"_s, Qt::ISODate).toSecsSinceEpoch());
        open();
    }
    ~LiveSourceTest() override { end(); }

    void open() {
        backEnd = std::move(EmbeddedBackEnd::open(storeFile).value());
        backEnd->attach(&listener);
        feed = std::make_unique<LiveFeed>(*backEnd);
    }
    // As a kill does: what is on its way is dropped.
    void end() {
        feed.reset();
        backEnd->detach(&listener);
        backEnd.reset();
    }
    QStringList told() const { return listener.heard.filter(u"News "_s); }
    bool hasTold(int count) {
        return QTest::qWaitFor([&] { return told().size() >= count && feed->isIdle(); }, 10000);
    }

    QTemporaryDir folder;
    QString storeFile = folder.filePath(u"news.db"_s);
    Listener listener;
    std::unique_ptr<EmbeddedBackEnd> backEnd;
    std::unique_ptr<LiveFeed> feed;
};

inline QString nameOf(SourceState::Kind kind) {
    return QStringList{u"connecting"_s, u"live"_s, u"stale"_s, u"offline"_s, u"failed"_s}.at(kind);
}

class ScriptedReader : public SourceReader {
public:
    explicit ScriptedReader(std::function<void(SourceQueue&)> given) : script(std::move(given)) {}
    void run(const QString&, SourceQueue& queue) override { script(queue); }

private:
    std::function<void(SourceQueue&)> script;
};

}  // namespace wirepane
