// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/worker_thread.h"

#include <QTimer>

#include <semaphore>

namespace wirepane {

WorkerThread::WorkerThread() {
    calls.moveToThread(&thread);
    thread.start();
}

WorkerThread::~WorkerThread() {
    calls.clear();
    // The thread sanitizer does not see into the waiting for a thread's end, but into this.
    run([this] { thread.quit(); });
    thread.wait();
}

void WorkerThread::postLater(std::chrono::milliseconds delay, Call call) {
    QTimer::singleShot(delay, &calls, [this, call = std::move(call)] { calls.post(call); });
}

void WorkerThread::run(const Call& call) {
    std::binary_semaphore done(0);
    calls.post([&] {
        call();
        done.release();
    });
    done.acquire();
}

}  // namespace wirepane
