// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/news_output.h"

#include <QBasicTimer>
#include <QObject>

#include <functional>

namespace wirepane {

// News that is put out beside everything else: from the event loop, a few milliseconds at a time. What is not
// finished is stopped when the run goes, and nobody is told. Interface thread only.
class OutputRun : public QObject {
public:
    struct Told {
        std::function<void()> handedOver;  // once: the next may begin
        std::function<void()> progressed;  // from half a second on
        // Once and last, never within a call of the run's; the run may go in it, by deleteLater.
        std::function<void(const NewsOutcome&)> finished;
    };

    explicit OutputRun(Told told);

    // Nothing more is put out, nothing is left of it; the run ends soon.
    virtual void stop() = 0;
    // How much is done, from 0 to 1.
    virtual double progress() const = 0;
    // It has taken more than half a second.
    bool isLong() const { return isTold; }

protected:
    // Does a millisecond's work. False: no turn is needed any more.
    virtual bool step() = 0;

    void handOver();
    void end(const NewsOutcome& outcome);

    void timerEvent(QTimerEvent* event) override;

private:
    Told told;
    QBasicTimer turn;
    QBasicTimer telling;
    bool isTold = false;
};

}  // namespace wirepane
