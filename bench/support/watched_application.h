// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QThread>

#include <algorithm>
#include <chrono>

namespace wirepane {

using BenchClock = std::chrono::steady_clock;

inline double secondsSince(BenchClock::time_point from) {
    return std::chrono::duration<double>(BenchClock::now() - from).count();
}

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
