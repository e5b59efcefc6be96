// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/page_painting.h"
#include "output/output_run.h"

#include <memory>

class BKQuoteInterface;

namespace wirepane {
class PageMaking;

// One print: its pages are made here, and handed to the host's painter.
class PrintRun : public OutputRun {
public:
    // `pages` are without pages yet, which `making` makes.
    PrintRun(std::shared_ptr<PagesToPaint> pages, std::unique_ptr<PageMaking> making,
             BKQuoteInterface& backEnd, Told told);
    ~PrintRun() override;

    void stop() override { pages->stopped = true; }
    // Making the pages is one half, painting them the other.
    double progress() const override;

protected:
    bool step() override;

private:
    void paint();
    void finish(const PaintOutcome& painted);

    std::shared_ptr<PagesToPaint> pages;
    std::unique_ptr<PageMaking> making;  // until they are made
    BKQuoteInterface& backEnd;
};

}  // namespace wirepane
