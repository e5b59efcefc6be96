// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/output_run.h"

#include <QElapsedTimer>
#include <QTimerEvent>

#include <utility>

namespace wirepane {

namespace {

constexpr int turnMs = 10;      // at one go; the window stands so long
constexpr int tellingMs = 500;  // what is shorter is not told

}  // namespace

OutputRun::OutputRun(Told whoIsTold) : told(std::move(whoIsTold)) {
    turn.start(0, this);
    telling.start(tellingMs, this);
}

void OutputRun::timerEvent(QTimerEvent* event) {
    if (event->timerId() == telling.timerId()) {
        isTold = true;
        told.progressed();
        return;
    }
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < turnMs) {
        if (!step()) {
            turn.stop();
            return;
        }
    }
}

void OutputRun::handOver() {
    if (const auto tell = std::exchange(told.handedOver, nullptr))
        tell();
}

void OutputRun::end(const NewsOutcome& outcome) {
    turn.stop();
    telling.stop();
    handOver();
    told.finished(outcome);
}

}  // namespace wirepane
