// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/news_output.h"
#include "output/news_item.h"
#include "output/page_layout.h"

class BKQuoteInterface;
class QPagedPaintDevice;
class QPrinter;
class QWidget;

// The pages of the items on a device with its paper and resolution, in the font and with the texts of the
// language in force and the present moment.
std::vector<PrintedPage> PagesOn(QPagedPaintDevice& device, BKQuoteInterface& backEnd,
                                 const NewsItems& items);

// Draws the pages. False: the device refuses.
bool DrawPages(QPagedPaintDevice& device, BKQuoteInterface& backEnd, const std::vector<PrintedPage>& pages);

// Prints on the printer; into a PDF file where it stands for one. Nothing is printed without pages.
NewsOutcome PrintItems(QPrinter& printer, BKQuoteInterface& backEnd, const NewsItems& items);
// Prints into a PDF file; an old file stays as it is unless the new one is complete.
NewsOutcome PrintItemsToPdf(const OutputTarget& target, BKQuoteInterface& backEnd, const NewsItems& items);

// Shows the pages that would be printed. Runs an event loop.
void PreviewItems(BKQuoteInterface& backEnd, const NewsItems& items, QWidget* parent);
