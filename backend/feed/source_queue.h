// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <variant>

namespace wirepane {

// Items that are taken together, and the position behind them; empty: there is none to keep.
struct SourceBatch {
    std::vector<SourceItem> items;
    QString position;
    std::chrono::steady_clock::time_point received = std::chrono::steady_clock::now();
};

// The batches and states of a source that is read on a thread of its own, in their order, on their way to the
// interface thread. Few batches wait: who reads faster than they are taken waits, too.
class SourceQueue {
public:
    static constexpr std::size_t mostWaiting = 4;  // batches

    // `arrived` is called on the reading thread whenever something has been put in.
    explicit SourceQueue(std::function<void()> arrived);

    // For the reading thread. The first two wait, and answer false once the queue is closed: then it is time
    // to return.
    bool push(SourceBatch batch);
    bool waitUntil(std::chrono::steady_clock::time_point moment);
    void tell(SourceState::Kind kind, const std::optional<Error>& reason = {});
    // Nothing more comes.
    void end();

    // For the interface thread.
    void close();
    // The batch whose turn it is; null: none, or a state comes before it. It stays in its place until pop().
    std::shared_ptr<const SourceBatch> front();
    void pop();
    struct Change {
        SourceState::Kind kind;
        std::optional<Error> reason;
    };
    // Takes the state out whose turn it is.
    std::optional<Change> takeChange();
    // All that came has been taken, and nothing more comes.
    bool isAtEnd();

private:
    std::function<void()> tellArrived;
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::variant<std::shared_ptr<const SourceBatch>, Change>> entries;
    std::size_t batches = 0;  // of these
    bool hasEnded = false;
    bool isClosed = false;
};

}  // namespace wirepane
