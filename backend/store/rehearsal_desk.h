// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/call_queue.h"
#include "backend/worker_thread.h"
#include "host/contract/query/key_set_rehearsal.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace wirepane {
struct RehearsedNews;
class StoreReader;

// As the store has it. The reader outlives it.
RehearsedNews rehearsedNews(StoreReader& reader);

// Tries key sets on a thread and a connection of its own, one after the other. Interface thread.
class RehearsalDesk {
public:
    explicit RehearsalDesk(QString storePath);
    // Drops what is being tried.
    ~RehearsalDesk();
    RehearsalDesk(const RehearsalDesk&) = delete;
    RehearsalDesk& operator=(const RehearsalDesk&) = delete;

    // As KeySetRehearsal::rehearseKeySet.
    std::shared_ptr<const void> rehearse(KeySetRehearsal::KeySet keySet, KeySetRehearsal::Told told);

private:
    struct Job;
    void carryOut(const std::shared_ptr<Job>& job);

    const QString path;
    std::vector<std::weak_ptr<Job>> jobs;  // those that are not done
    CallQueue answers;                     // on the interface thread
    std::unique_ptr<WorkerThread> thread;  // made when it is needed; last: it uses all of the above
};

}  // namespace wirepane
