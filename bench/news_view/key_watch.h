// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/support/bench_clock.h"

#include <QCoreApplication>
#include <QInputDevice>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <atomic>
#include <benchmark/benchmark.h>
#include <chrono>
#include <thread>
#include <utility>
#include <vector>

namespace wirepane::bench {

using Clock = BenchClock;

// Notes when the keys that were posted to a window have been answered.
class KeyWatch : public QObject {
public:
    // The keyboard is made here, on the interface thread.
    explicit KeyWatch(QWidget& window) : target(window) { QInputDevice::primaryKeyboard(); }

    // Any thread: a key, and a mark behind it in the queue of events.
    void post() {
        QCoreApplication::postEvent(&target, new QKeyEvent(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier));
        QCoreApplication::postEvent(this, new Mark);
    }
    // Seconds from the post to the answer, ascending.
    std::vector<double> takeWaits() {
        std::sort(waits.begin(), waits.end());
        return std::exchange(waits, {});
    }

protected:
    bool event(QEvent* event) override {
        if (auto* mark = dynamic_cast<Mark*>(event)) {
            waits.push_back(secondsSince(mark->posted));
            return true;
        }
        return QObject::event(event);
    }

private:
    struct Mark : QEvent {
        Mark() : QEvent(QEvent::User) {}
        Clock::time_point posted = Clock::now();
    };

    QWidget& target;
    std::vector<double> waits;
};

// Somebody who strikes a key every few milliseconds, from a thread of his own, for as long as this lives.
class Typing {
public:
    explicit Typing(KeyWatch& watch)
        : thread([this, &watch] {
              while (!over) {
                  std::this_thread::sleep_for(std::chrono::milliseconds(3));
                  watch.post();
              }
          }) {}
    ~Typing() {
        over = true;
        thread.join();
    }
    Typing(const Typing&) = delete;
    Typing& operator=(const Typing&) = delete;

private:
    std::atomic<bool> over = false;
    std::thread thread;
};

// The spread of waits, which are seconds in ascending order, in milliseconds.
inline void countWaits(benchmark::State& state, const std::vector<double>& waits) {
    const auto wait = [&](double share) {
        return 1000 * waits.at(static_cast<std::size_t>(share * static_cast<double>(waits.size() - 1)));
    };
    state.counters["waits"] = static_cast<double>(waits.size());
    state.counters["ms_50"] = wait(0.5);
    state.counters["ms_90"] = wait(0.9);
    state.counters["ms_99"] = wait(0.99);
    state.counters["ms_max"] = wait(1);
}

}  // namespace wirepane::bench
