// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/news_output.h"
#include "output/output_item.h"
#include "output/page_layout.h"

class BKQuoteInterface;
class QPagedPaintDevice;
class QPrinter;
class QWidget;

namespace wirepane {

// The pages of the items on a device with its paper and resolution, in the font and with the texts of the
// language in force and the present moment.
std::vector<PrintedPage> pagesOn(QPagedPaintDevice& device, BKQuoteInterface& backEnd,
                                 const OutputItems& items);

// Draws the pages. False: the device refuses.
bool drawPages(QPagedPaintDevice& device, BKQuoteInterface& backEnd, const std::vector<PrintedPage>& pages);

// Prints on the printer; into a PDF file where it stands for one. Nothing is printed without pages.
NewsOutcome printItems(QPrinter& printer, BKQuoteInterface& backEnd, const OutputItems& items);
// Prints into a PDF file; an old file stays as it is unless the new one is complete.
NewsOutcome printItemsToPdf(const OutputTarget& target, BKQuoteInterface& backEnd, const OutputItems& items);

// Shows the pages that would be printed. Runs an event loop.
void previewItems(BKQuoteInterface& backEnd, const OutputItems& items, QWidget* parent);

}  // namespace wirepane
