// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/worker_thread.h"

#include <atomic>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <utility>

namespace wirepane {

// Flushes what is committed to a store to its disk on a thread and a connection of its own, so that a slow
// disk keeps nobody waiting who commits. What is committed survives the death of the program at once, and
// that of the machine once it is on the disk. Interface thread.
class StoreSync {
public:
    // An error: why it cannot be said that it is on the disk.
    using Callback = std::function<void(const Done& onDisk)>;

    // The database is not owned and outlives this. From now on its commits do not wait for the disk, and its
    // log gets its checkpoints from the thread.
    explicit StoreSync(Database& database);
    ~StoreSync();
    StoreSync(const StoreSync&) = delete;
    StoreSync& operator=(const StoreSync&) = delete;

    // Called back from the event loop, when all that has been committed until now is on the disk. Who commits
    // much waits for it each time, lest the log grow without end.
    void whenOnDisk(Callback callback);
    // Waits for that, and calls back whoever waits.
    void finish();

private:
    static int committed(void* self, sqlite3*, const char*, int pagesInLog);
    void ask(bool isLogLong);
    void deliver(std::int64_t upTo, const Done& onDisk);
    // On the thread:
    void syncWhatIsNew();
    Done sync();
    void checkpoint();

    const QString path;
    sqlite3* const writing;
    CallQueue answers;                                      // on the interface thread
    std::deque<std::pair<std::int64_t, Callback>> waiting;  // by the commit that they wait for

    std::atomic<std::int64_t> commits = 0;
    std::atomic<bool> isLong = false;   // the log
    std::atomic<bool> isAsked = false;  // what the thread has not begun

    // The thread's own.
    std::unique_ptr<Database> database;
    std::int64_t synced = 0;  // commits
    Done outcome;             // of the last time

    WorkerThread thread;  // last: it uses all of the above
};

}  // namespace wirepane
