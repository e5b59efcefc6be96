// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"
#include "host/contract/search_condition.h"

#include <QString>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace wirepane {

// One search in one service. `dropped` may be set at any time: nobody waits for the answer any more.
struct SearchJob {
    std::int64_t ticket = 0;
    unsigned char service = 0;
    CSearch condition;
    std::shared_ptr<std::atomic<bool>> dropped;
};

// Searches a store on a thread and a connection of its own, in the order of asking. A store that cannot be
// read gives empty answers. Soon after it was made, when nothing is asked, it reads the keys of the
// headlines.
class SearchWorker {
public:
    // `answer` is called on the worker's thread, never after the destructor returns; not for dropped jobs.
    using Answer = std::function<void(std::int64_t ticket, std::vector<CHeadlineTable>&& entries)>;

    SearchWorker(QString storePath, Answer answer);
    // Gives up what is being searched.
    ~SearchWorker();
    SearchWorker(const SearchWorker&) = delete;
    SearchWorker& operator=(const SearchWorker&) = delete;

    // Any thread.
    void ask(SearchJob job);

private:
    void run();
    // The next job; false at the end. `job` has no ticket when nothing was asked for a while.
    bool take(SearchJob& job, bool idle);

    const QString path;
    const Answer tell;
    std::mutex mutex;
    std::condition_variable asked;
    std::deque<SearchJob> jobs;
    std::shared_ptr<std::atomic<bool>> current;  // the `dropped` of the job being searched
    bool ending = false;
    std::thread thread;  // last: it uses all of the above
};

}  // namespace wirepane
