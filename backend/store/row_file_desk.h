// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/call_queue.h"
#include "backend/database/database.h"
#include "backend/worker_thread.h"
#include "host/contract/news_row_files.h"

#include <QString>

#include <memory>
#include <vector>

namespace wirepane {

// Writes files of rows on a thread and a connection of its own, one after the other. Interface thread.
class RowFileDesk {
public:
    explicit RowFileDesk(QString storePath);
    // Stops what is being written.
    ~RowFileDesk();
    RowFileDesk(const RowFileDesk&) = delete;
    RowFileDesk& operator=(const RowFileDesk&) = delete;

    // As NewsRowFiles::writeRowFile.
    std::shared_ptr<const void> write(std::vector<CHeadlineTable> entries, NewsRowForm form,
                                      const QString& file, NewsRowFiles::Tellers tellers);

private:
    struct Job;
    void carryOut(const std::shared_ptr<Job>& job);
    RowFileOutcome outcomeOf(const std::shared_ptr<Job>& job);

    const QString path;
    std::vector<std::weak_ptr<Job>> jobs;  // those that are not done
    CallQueue told;                        // on the interface thread
    std::unique_ptr<WorkerThread> thread;  // made when it is needed; last: it uses all of the above
};

}  // namespace wirepane
