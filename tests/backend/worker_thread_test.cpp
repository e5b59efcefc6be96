// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/worker_thread.h"

#include <QSemaphore>

#include <gtest/gtest.h>
#include <numeric>

namespace wirepane {
namespace {

TEST(WorkerThreadTest, DoesWhatItIsAskedForInOrderOnItsThread) {
    WorkerThread worker;
    std::vector<int> done;
    const QThread* thread = nullptr;
    for (int i = 0; i < 100; ++i)
        worker.post([&, i] { done.push_back(i); });
    worker.run([&] {
        thread = QThread::currentThread();
        done.push_back(100);
    });
    std::vector<int> expected(101);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(done, expected);
    EXPECT_NE(thread, QThread::currentThread());
}

TEST(WorkerThreadTest, LaterIsLater) {
    WorkerThread worker;
    std::atomic<int> order = 0;
    QSemaphore later;
    worker.run([&] {
        worker.postLater(std::chrono::milliseconds(20), [&] {
            EXPECT_EQ(order, 1);
            later.release();
        });
        worker.post([&] { ++order; });
    });
    EXPECT_TRUE(later.tryAcquire(1, 10'000));
}

TEST(WorkerThreadTest, TheEndDropsWhatHasNotBegun) {
    constexpr int calls = 2000;
    std::atomic<int> begun = 0;
    {
        QSemaphore go;
        WorkerThread worker;
        worker.post([&] {
            worker.postLater(std::chrono::minutes(1), [&] { begun = calls; });
            go.acquire();
        });
        for (int i = 0; i < calls; ++i) {
            worker.post([&] {
                ++begun;
                QThread::msleep(1);
            });
        }
        go.release();
    }
    EXPECT_LT(begun, calls);
}

}  // namespace
}  // namespace wirepane
