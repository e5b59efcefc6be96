// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/source_queue.h"

#include <utility>

namespace wirepane {

SourceQueue::SourceQueue(std::function<void()> arrived) : tellArrived(std::move(arrived)) {}

bool SourceQueue::push(SourceBatch batch) {
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return isClosed || batches < mostWaiting; });
        if (isClosed)
            return false;
        entries.emplace_back(std::make_shared<const SourceBatch>(std::move(batch)));
        ++batches;
    }
    tellArrived();
    return true;
}

bool SourceQueue::waitUntil(std::chrono::steady_clock::time_point moment) {
    std::unique_lock lock(mutex);
    changed.wait_until(lock, moment, [this] { return isClosed; });
    return !isClosed;
}

void SourceQueue::tell(SourceState::Kind kind, const std::optional<Error>& reason) {
    {
        const std::lock_guard lock(mutex);
        // Nobody has heard of the state before it, so that states cannot pile up either.
        if (!entries.empty() && std::holds_alternative<Change>(entries.back()))
            entries.pop_back();
        entries.emplace_back(Change{kind, reason});
    }
    tellArrived();
}

void SourceQueue::end() {
    {
        const std::lock_guard lock(mutex);
        hasEnded = true;
    }
    tellArrived();
}

void SourceQueue::close() {
    {
        const std::lock_guard lock(mutex);
        isClosed = true;
    }
    changed.notify_all();
}

std::shared_ptr<const SourceBatch> SourceQueue::front() {
    const std::lock_guard lock(mutex);
    if (entries.empty() || std::holds_alternative<Change>(entries.front()))
        return nullptr;
    return std::get<std::shared_ptr<const SourceBatch>>(entries.front());
}

void SourceQueue::pop() {
    {
        const std::lock_guard lock(mutex);
        entries.pop_front();
        --batches;
    }
    changed.notify_all();
}

std::optional<SourceQueue::Change> SourceQueue::takeChange() {
    const std::lock_guard lock(mutex);
    if (entries.empty() || !std::holds_alternative<Change>(entries.front()))
        return std::nullopt;
    std::optional<Change> change = std::get<Change>(std::move(entries.front()));
    entries.pop_front();
    return change;
}

bool SourceQueue::isAtEnd() {
    const std::lock_guard lock(mutex);
    return hasEnded && entries.empty();
}

}  // namespace wirepane
