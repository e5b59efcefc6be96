// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/call_queue.h"
#include "backend/database/database.h"
#include "backend/worker_thread.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

namespace wirepane {

// How a store is read through in the background. A page takes a few milliseconds.
struct GuardPace {
    std::chrono::milliseconds firstPage{30'000};
    std::chrono::milliseconds nextPage{2000};
    std::chrono::milliseconds nextPass{3'600'000};
};

// Reads a store through while it is used, a page of news at a time, on a thread and a connection of its own:
// whether the rows can be read, keep the store's rules and stand in the indexes. What StoreChecker finds
// beside that takes the whole store at once. Interface thread.
class StoreGuard {
public:
    // `found` is called once, from the event loop, when something is wrong.
    StoreGuard(QString storePath, std::function<void()> found, const GuardPace& pace = {});

private:
    // On the thread:
    void readPage();
    // The next page has been looked at; false: there was none.
    bool lookAtPage();

    const QString path;
    const GuardPace pace;
    CallQueue answers;  // on the interface thread
    std::function<void()> tell;
    std::unique_ptr<Database> database;
    std::int64_t nextId = 0;
    bool isFaulty = false;
    WorkerThread thread;  // last: it uses all of the above
};

}  // namespace wirepane
