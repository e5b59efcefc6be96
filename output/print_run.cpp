// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/print_run.h"

#include "output/page_printing.h"

#include <QPointer>

namespace wirepane {

PrintRun::PrintRun(std::shared_ptr<PagesToPaint> pagesToPaint, std::unique_ptr<PageMaking> pageMaking,
                   BKQuoteInterface& newsBackEnd, Told whoIsTold)
    : OutputRun(std::move(whoIsTold)),
      pages(std::move(pagesToPaint)),
      making(std::move(pageMaking)),
      backEnd(newsBackEnd) {}

PrintRun::~PrintRun() {
    pages->stopped = true;
}

double PrintRun::progress() const {
    if (making != nullptr)
        return making->progress() / 2;
    return pages->pages.empty() ? 1 : 0.5 + 0.5 * pages->painted / pages->count();
}

bool PrintRun::step() {
    if (pages->stopped)
        finish({PaintResult::Stopped, {}});
    else if (making->step())
        return true;
    else
        paint();
    return false;
}

void PrintRun::paint() {
    pages->pages = making->takePages();
    making.reset();
    PagePainter* painter = PagePainter::installed();
    if (pages->pages.empty()) {
        finish({});
    } else if (painter == nullptr) {
        finish(paintPages(*pages));
    } else {
        painter->paint(pages, [self = QPointer<PrintRun>(this)](const PaintOutcome& painted) {
            if (self)
                self->finish(painted);
        });
        handOver();
    }
}

void PrintRun::finish(const PaintOutcome& painted) {
    end(outcomeOf(*pages, painted, backEnd));
}

}  // namespace wirepane
