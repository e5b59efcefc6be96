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
// that of the machine once it is on the disk. Interface thread, whichever thread commits.
class StoreSync {
public:
    // An error: why it cannot be said that it is on the disk.
    using Callback = std::function<void(const Done& onDisk)>;

    // The database is not owned and outlives this; nobody commits while this is made or ends. From now on its
    // commits do not wait for the disk, and its log gets no checkpoints by itself (see isLogLong).
    explicit StoreSync(Database& database);
    ~StoreSync();
    StoreSync(const StoreSync&) = delete;
    StoreSync& operator=(const StoreSync&) = delete;

    // Called back from the event loop, when all that has been committed until now is on the disk.
    void whenOnDisk(Callback callback);
    // The log has grown since the last checkpoint so far that it is time for another. Any thread.
    bool isLogLong() const;
    // A checkpoint has been made, as far as readers let it.
    void noteCheckpoint() { pagesAtCheckpoint = pagesInLog.load(); }

private:
    static int committed(void* self, sqlite3*, const char*, int pagesInLog);
    void ask();
    void deliver(std::int64_t upTo, const Done& onDisk);
    // On the thread:
    void syncWhatIsNew();
    Done sync();

    const QString path;
    sqlite3* const writing;
    CallQueue answers;                                      // on the interface thread
    std::deque<std::pair<std::int64_t, Callback>> waiting;  // by the commit that they wait for

    std::atomic<std::int64_t> commits = 0;
    std::atomic<int> pagesInLog = 0;
    std::atomic<int> pagesAtCheckpoint = 0;
    std::atomic<bool> isAsked = false;  // what the thread has not begun

    // The thread's own.
    std::unique_ptr<Database> database;
    std::int64_t synced = 0;  // commits
    Done outcome;             // of the last time

    WorkerThread thread;  // last: it uses all of the above
};

}  // namespace wirepane
