// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/read_ahead.h"

#include "backend/packed_text.h"
#include "backend/worker_thread.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>
#include <vector>

namespace wirepane {

namespace {

// Handing items over one by one would wake the other thread for each; with too few of them on the way each
// thread waits for the other whenever the machine is busy. Weights are characters of stories, and some for
// the rest.
constexpr qsizetype weightOfRest = 512;
constexpr qsizetype heldTogether = qsizetype(64) << 10;
constexpr qsizetype mostWaiting = qsizetype(1) << 20;
constexpr std::chrono::milliseconds beforePause{20};

struct Lot {
    std::vector<SourceItem> items;
    qsizetype weight = 0;
};

qsizetype weightOf(const SourceItem& item) {
    const auto* const news = item.content ? std::get_if<NewsItem>(&item.content.value()) : nullptr;
    return weightOfRest + item.sizeOfRest + (news != nullptr && news->story ? news->story->size() : 0);
}

// Between two threads.
class Waiting {
public:
    // For the reader: waits for room. False: nobody takes what it reads any more.
    bool push(Lot lot) {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return isClosed || weight < mostWaiting; });
        weight += lot.weight;
        if (!isClosed)
            lots.push_back(std::move(lot));
        changed.notify_all();
        return !isClosed;
    }
    void end() {
        const std::lock_guard lock(mutex);
        hasEnded = true;
        changed.notify_all();
    }

    // For who takes them: whether there are any before long, and waits for them; none when the reader has
    // come to its end.
    bool hasAnySoon() {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, beforePause, [this] { return hasEnded || !lots.empty(); });
    }
    Lot pop() {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return hasEnded || !lots.empty(); });
        if (lots.empty())
            return {};
        Lot lot = std::move(lots.front());
        lots.pop_front();
        weight -= lot.weight;
        changed.notify_all();
        return lot;
    }
    void close() {
        const std::lock_guard lock(mutex);
        isClosed = true;
        changed.notify_all();
    }

private:
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Lot> lots;
    qsizetype weight = 0;  // of them all
    bool isClosed = false;
    bool hasEnded = false;
};

Done readInto(Waiting& waiting, const Reader& read) {
    Lot lot;
    const Done done = read([&](SourceItem&& item) {
        lot.weight += weightOf(item);
        lot.items.push_back(std::move(item));
        return lot.weight < heldTogether || waiting.push(std::exchange(lot, {}));
    });
    if (!lot.items.empty())
        waiting.push(std::move(lot));
    waiting.end();
    return done;
}

void finish(SourceItem& item) {
    item.finish();
}

// Takes as long as putting the packed story in: it is not left to who writes.
void pack(SourceItem& item) {
    auto* const news = item.content ? std::get_if<NewsItem>(&item.content.value()) : nullptr;
    if (news != nullptr && news->story)
        news->packedStory = {*news->story, packedText(news->story->toUtf8())};
}

// Between the one who reads and the one who takes: does to the items what is left to be done.
void workOnAll(Waiting& from, Waiting& to, void (*work)(SourceItem&)) {
    bool isTaken = true;
    for (Lot lot = from.pop(); isTaken && !lot.items.empty(); lot = from.pop()) {
        lot.weight = 0;
        for (SourceItem& item : lot.items) {
            work(item);
            lot.weight += weightOf(item);
        }
        isTaken = to.push(std::move(lot));
        if (!isTaken)
            from.close();
    }
    to.end();
}

bool takeAll(std::vector<SourceItem> items, const ItemVisitor& visit) {
    for (SourceItem& item : items) {
        if (!visit(std::move(item)))
            return false;
    }
    return true;
}

}  // namespace

Done readAhead(const Reader& read, const ItemVisitor& visit, const std::function<void()>& pause) {
    Waiting unfinished;
    Waiting unpacked;
    Waiting waiting;
    Done done = Nothing{};
    WorkerThread reader;
    WorkerThread finisher;
    WorkerThread packer;
    reader.post([&] { done = readInto(unfinished, read); });
    finisher.post([&] { workOnAll(unfinished, unpacked, finish); });
    packer.post([&] { workOnAll(unpacked, waiting, pack); });
    const auto next = [&] {
        if (pause && !waiting.hasAnySoon())
            pause();
        return waiting.pop().items;
    };
    for (auto items = next(); !items.empty(); items = next()) {
        if (!takeAll(std::move(items), visit))
            break;
    }
    waiting.close();
    packer.run([] {});
    finisher.run([] {});
    reader.run([] {});
    return done;
}

}  // namespace wirepane
