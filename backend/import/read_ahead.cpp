// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/read_ahead.h"

#include "backend/worker_thread.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>
#include <vector>

namespace wirepane {

namespace {

// Handing items over one by one would wake the other thread for each.
constexpr std::size_t mostTogether = 64;       // items
constexpr qsizetype enoughCharacters = 32768;  // for which none is waited for any longer
constexpr std::size_t mostWaiting = 4;         // lots of items

using Items = std::vector<SourceItem>;

qsizetype charactersOf(const SourceItem& item) {
    const auto* const news = item.content ? std::get_if<NewsItem>(&item.content.value()) : nullptr;
    return news != nullptr && news->story ? news->story->size() : 0;
}

// Between the two threads.
class Waiting {
public:
    // For the reader: waits for room. False: nobody takes what it reads any more.
    bool push(Items items) {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return isClosed || lots.size() < mostWaiting; });
        if (!isClosed)
            lots.push_back(std::move(items));
        changed.notify_all();
        return !isClosed;
    }
    void end() {
        const std::lock_guard lock(mutex);
        hasEnded = true;
        changed.notify_all();
    }

    // For who takes them: waits for items; none when the reader has come to its end.
    Items pop() {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return hasEnded || !lots.empty(); });
        if (lots.empty())
            return {};
        Items items = std::move(lots.front());
        lots.pop_front();
        changed.notify_all();
        return items;
    }
    void close() {
        const std::lock_guard lock(mutex);
        isClosed = true;
        changed.notify_all();
    }

private:
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Items> lots;
    bool isClosed = false;
    bool hasEnded = false;
};

Done readInto(Waiting& waiting, const Reader& read) {
    Items items;
    qsizetype characters = 0;
    const Done done = read([&](SourceItem&& item) {
        characters += charactersOf(item);
        items.push_back(std::move(item));
        if (items.size() < mostTogether && characters < enoughCharacters)
            return true;
        characters = 0;
        return waiting.push(std::exchange(items, {}));
    });
    if (!items.empty())
        waiting.push(std::move(items));
    waiting.end();
    return done;
}

bool takeAll(Items items, const ItemVisitor& visit) {
    for (SourceItem& item : items) {
        if (!visit(std::move(item)))
            return false;
    }
    return true;
}

}  // namespace

Done readAhead(const Reader& read, const ItemVisitor& visit) {
    Waiting waiting;
    Done done = Nothing{};
    WorkerThread thread;
    thread.post([&] { done = readInto(waiting, read); });
    for (Items items = waiting.pop(); !items.empty(); items = waiting.pop()) {
        if (!takeAll(std::move(items), visit))
            break;
    }
    waiting.close();
    thread.run([] {});
    return done;
}

}  // namespace wirepane
