// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/page_painting.h"
#include "host/views/news_output.h"
#include "output/output_item.h"
#include "output/page_layout.h"

#include <memory>
#include <variant>

class BKQuoteInterface;
class QPrinter;

namespace wirepane {

// The families of the pages' font: the face that the language in force names, and for what it lacks those of
// the host.
QStringList pageFamilies(BKQuoteInterface& backEnd);

// What prints on a printer; into a PDF file where the printer stands for one. Without pages yet.
std::shared_ptr<PagesToPaint> pagesFor(const std::shared_ptr<QPrinter>& printer, BKQuoteInterface& backEnd);
// What prints into a PDF file, or why it cannot.
std::variant<std::shared_ptr<PagesToPaint>, NewsOutcome> pagesForPdf(const OutputTarget& target,
                                                                     BKQuoteInterface& backEnd);

// Makes the pages of news for where they go, with its paper and resolution, in the texts of the language in
// force and the present moment. Interface thread.
class PageMaking {
public:
    PageMaking(const PagesToPaint& destination, BKQuoteInterface& backEnd, const OutputItems& items);
    PageMaking(QPagedPaintDevice& device, BKQuoteInterface& backEnd, const OutputItems& items);
    ~PageMaking();

    // As of PageMaker.
    bool step() { return maker->step(); }
    double progress() const { return maker->progress(); }
    std::vector<PrintedPage> takePages() { return maker->takePages(); }
    // The same in one go.
    std::vector<PrintedPage> allPages();

private:
    std::unique_ptr<PageMaker> makerOn(QPagedPaintDevice& device, BKQuoteInterface& backEnd,
                                       const OutputItems& items);

    struct PdfPaper;

    std::unique_ptr<PdfPaper> paper;  // where there is no device to measure on
    std::unique_ptr<TextMeasure> measure;
    std::unique_ptr<PageMaker> maker;
};

// What the user is to know of it when it has been painted.
NewsOutcome outcomeOf(const PagesToPaint& pages, const PaintOutcome& painted, BKQuoteInterface& backEnd);

// Print in one go. Nothing is printed without pages.
NewsOutcome printInOneGo(const std::shared_ptr<PagesToPaint>& pages, BKQuoteInterface& backEnd,
                         const OutputItems& items);
NewsOutcome printItemsToPdf(const OutputTarget& target, BKQuoteInterface& backEnd, const OutputItems& items);

}  // namespace wirepane
