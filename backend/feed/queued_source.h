// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/call_queue.h"
#include "backend/feed/source_queue.h"
#include "backend/worker_thread.h"

#include <memory>

namespace wirepane {

// What reads a source that blocks.
class SourceReader {
public:
    virtual ~SourceReader() = default;

    // Runs on a thread of its own: reads from behind the position (empty: from the start), pushes batches and
    // tells states, until the queue is closed or nothing more can come. Runs anew after an outage, from the
    // position that is kept by then. What it waits for by other means than the queue it waits for briefly:
    // who ends the source waits for its return.
    virtual void run(const QString& position, SourceQueue& queue) = 0;
};

// A source that is read on a thread of its own and taken on the interface thread, in the order of reading.
class QueuedSource : public FeedSource {
public:
    QueuedSource(QString name, std::unique_ptr<SourceReader> reader);
    ~QueuedSource() override;

    QString name() const override { return ownName; }
    bool awaitsPosition() const override { return isWaiting; }
    void resume(const Result<QString>& position) override;
    bool hasBatch() override;
    std::shared_ptr<FeedBatch> batch() override;
    void acknowledge(const BatchOutcome& outcome) override;
    // What was not acknowledged before an outage is read again after it.
    void setOnline(bool on) override;
    bool isDone() override;

private:
    void stop();
    void arrived();

    QString ownName;
    std::unique_ptr<SourceReader> reader;
    CallQueue calls;                     // for the interface thread
    std::unique_ptr<SourceQueue> queue;  // of the reading that is under way; null: none is
    std::unique_ptr<WorkerThread> thread;
    bool isWaiting = true;  // for its position
    bool isTaken = false;   // the batch at hand
};

}  // namespace wirepane
