// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/page_painting.h"

#include <QBasicTimer>
#include <QObject>

#include <functional>
#include <memory>

namespace wirepane {
class PageMaking;

// One print that goes on beside everything else: its pages are made from the event loop, a few milliseconds
// at a time, and handed to the host's painter. What is not finished is stopped when the run goes, and nobody
// is told. Interface thread only.
class PrintRun : public QObject {
public:
    struct Told {
        std::function<void()> handedOver;  // once, also where there is nothing to hand over
        std::function<void()> progressed;  // from half a second on
        // Once and last, never within a call of the run's; the run may go in it, by deleteLater.
        std::function<void(const PaintOutcome&)> painted;
    };

    // `pages` are without pages yet, which `making` makes.
    PrintRun(std::shared_ptr<PagesToPaint> pages, std::unique_ptr<PageMaking> making, Told told);
    ~PrintRun() override;

    const PagesToPaint& job() const { return *pages; }
    // Nothing of it is printed that has not been yet; the run ends soon.
    void stop() { pages->stopped = true; }
    // How much is done, from 0 to 1; making the pages is one half, painting them the other.
    double progress() const;
    // It has taken more than half a second.
    bool isLong() const { return isTold; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void makePages();
    void handOver();
    void end(const PaintOutcome& outcome);

    std::shared_ptr<PagesToPaint> pages;
    std::unique_ptr<PageMaking> making;  // until they are made
    Told told;
    QBasicTimer turn;
    QBasicTimer telling;
    bool isTold = false;
};

}  // namespace wirepane
