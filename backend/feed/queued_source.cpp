// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/queued_source.h"

#include <utility>

namespace wirepane {

namespace {

class QueuedBatch : public FeedBatch {
public:
    explicit QueuedBatch(std::shared_ptr<const SourceBatch> queued) : batch(std::move(queued)) {}

    Done read(const ItemVisitor& visit) override {
        for (const SourceItem& item : batch->items) {
            if (!visit(SourceItem(item)))
                break;
        }
        return Nothing{};
    }
    QString position() const override { return batch->position; }
    Clock::time_point received() const override { return batch->received; }

private:
    std::shared_ptr<const SourceBatch> batch;
};

}  // namespace

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
    isTaken = false;
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

std::shared_ptr<FeedBatch> QueuedSource::batch() {
    isTaken = true;
    return std::make_shared<QueuedBatch>(queue->front());
}

void QueuedSource::acknowledge(const BatchOutcome&) {
    // A batch of before an outage is not at hand any more.
    if (!std::exchange(isTaken, false))
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
