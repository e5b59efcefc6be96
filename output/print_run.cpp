// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/print_run.h"

#include "output/page_printing.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimerEvent>

namespace wirepane {

namespace {

constexpr int turnMs = 10;      // at one go; the window stands so long
constexpr int tellingMs = 500;  // what is shorter is not told

}  // namespace

PrintRun::PrintRun(std::shared_ptr<PagesToPaint> pagesToPaint, std::unique_ptr<PageMaking> pageMaking,
                   Told whoIsTold)
    : pages(std::move(pagesToPaint)), making(std::move(pageMaking)), told(std::move(whoIsTold)) {
    turn.start(0, this);
    telling.start(tellingMs, this);
}

PrintRun::~PrintRun() {
    stop();
}

double PrintRun::progress() const {
    if (making != nullptr)
        return making->progress() / 2;
    return pages->pages.empty() ? 1 : 0.5 + 0.5 * pages->painted / pages->count();
}

void PrintRun::timerEvent(QTimerEvent* event) {
    if (event->timerId() == turn.timerId()) {
        makePages();
    } else {
        isTold = true;
        told.progressed();
    }
}

void PrintRun::makePages() {
    QElapsedTimer clock;
    clock.start();
    while (!pages->stopped && clock.elapsed() < turnMs) {
        if (!making->step()) {
            handOver();
            return;
        }
    }
    if (pages->stopped)
        end({PaintResult::Stopped, {}});
}

void PrintRun::handOver() {
    turn.stop();
    pages->pages = making->takePages();
    making.reset();
    PagePainter* painter = PagePainter::installed();
    if (pages->pages.empty()) {
        end({});
    } else if (painter == nullptr) {
        end(paintPages(*pages));
    } else {
        painter->paint(pages, [self = QPointer<PrintRun>(this)](const PaintOutcome& outcome) {
            if (self)
                self->end(outcome);
        });
        told.handedOver();
        told.handedOver = nullptr;
    }
}

void PrintRun::end(const PaintOutcome& outcome) {
    turn.stop();
    telling.stop();
    if (told.handedOver)
        told.handedOver();
    told.painted(outcome);
}

}  // namespace wirepane
