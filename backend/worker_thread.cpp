// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/worker_thread.h"

#include <QTimer>

namespace wirepane {

WorkerThread::WorkerThread() {
    eventLoop.moveToThread(&thread);
    thread.start();
}

WorkerThread::~WorkerThread() {
    ending = true;
    thread.quit();
    thread.wait();
}

void WorkerThread::post(Call call) {
    QMetaObject::invokeMethod(
        &eventLoop,
        [this, call = std::move(call)] {
            if (!ending)
                call();
        },
        Qt::QueuedConnection);
}

void WorkerThread::postLater(std::chrono::milliseconds delay, Call call) {
    QTimer::singleShot(delay, &eventLoop, [this, call = std::move(call)] {
        if (!ending)
            call();
    });
}

void WorkerThread::run(const Call& call) {
    QMetaObject::invokeMethod(&eventLoop, call, Qt::BlockingQueuedConnection);
}

}  // namespace wirepane
