// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/call_queue.h"

#include <QThread>

#include <chrono>

namespace wirepane {

// A thread that does what it is asked for, one call after the other in the order of asking.
class WorkerThread {
public:
    using Call = CallQueue::Call;

    WorkerThread();
    // Waits for the call that is running; those that have not begun are dropped.
    ~WorkerThread();
    WorkerThread(const WorkerThread&) = delete;
    WorkerThread& operator=(const WorkerThread&) = delete;

    // Any thread.
    void post(Call call) { calls.post(std::move(call)); }
    // Called on the thread itself: posts the call after so long.
    void postLater(std::chrono::milliseconds delay, Call call);
    // Waits until the call is done, and those before it. Any other thread.
    void run(const Call& call);

private:
    QThread thread;
    CallQueue calls;  // lives on the thread
};

}  // namespace wirepane
