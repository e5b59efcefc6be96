// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/support/bench_clock.h"

#include <QApplication>
#include <QThread>

#include <algorithm>

namespace wirepane {

// Notes the longest time that handling one event of the interface thread took: so long may a key have to
// wait.
class WatchedApplication : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        if (QThread::currentThread() != thread())
            return QApplication::notify(receiver, event);
        const auto from = BenchClock::now();
        ++depth;
        const bool handled = QApplication::notify(receiver, event);
        if (--depth == 0)
            longest = std::max(longest, secondsSince(from));
        return handled;
    }
    double longest = 0;

private:
    int depth = 0;
};

}  // namespace wirepane
