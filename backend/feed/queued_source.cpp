// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/queued_source.h"

#include <utility>

namespace wirepane {

QueuedSource::QueuedSource(QString name, std::unique_ptr<SourceReader> sourceReader)
    : ownName(std::move(name)), reader(std::move(sourceReader)) {}

QueuedSource::~QueuedSource() {
    stop();
}

void QueuedSource::resume(const Result<QString>& position) {
    // Where the store cannot say, it is asked again.
    if (!position) {
        setState(SourceState::Failed, position.error());
        return;
    }
    isWaiting = false;
    setState(SourceState::Connecting);
    queue = std::make_unique<SourceQueue>([this] { calls.post([this] { arrived(); }); });
    thread = std::make_unique<WorkerThread>();
    thread->post([from = position.value(), way = queue.get(), this] {
        reader->run(from, *way);
        way->end();
    });
}

void QueuedSource::stop() {
    if (queue)
        queue->close();
    thread.reset();
    queue.reset();
    calls.clear();
    isRead = false;
}

void QueuedSource::arrived() {
    while (queue) {
        const std::optional<SourceQueue::Change> change = queue->takeChange();
        if (!change)
            break;
        setState(change->kind, change->reason);
    }
    if (hasBatch() || isDone())
        tellReady();
}

bool QueuedSource::hasBatch() {
    return queue && queue->front() != nullptr;
}

Done QueuedSource::read(const ItemVisitor& visit) {
    isRead = true;
    for (const SourceItem& item : queue->front()->items) {
        if (!visit(SourceItem(item)))
            break;
    }
    return Nothing{};
}

QString QueuedSource::position() const {
    return queue->front()->position;
}

void QueuedSource::acknowledge(const BatchOutcome&) {
    // A batch of before a break is not at hand any more.
    if (!std::exchange(isRead, false))
        return;
    queue->pop();
    arrived();
}

void QueuedSource::setOnline(bool on) {
    stop();
    isWaiting = on;
    setState(on ? SourceState::Connecting : SourceState::Offline);
    if (on)
        tellReady();
}

bool QueuedSource::isDone() {
    return queue && queue->isAtEnd() && state().kind != SourceState::Failed;
}

}  // namespace wirepane
