// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/news_output.h"

#include <optional>

class BKQuoteInterface;
class QPrinter;
class QWidget;

namespace wirepane {

// What printing and saving ask the user; the platform's dialogs. Each runs an event loop: what the caller
// holds may be gone afterwards.
class OutputDialogs {
public:
    virtual ~OutputDialogs() = default;

    // Lets the user choose the printer and its settings; no ranges of pages, several copies collated. Where
    // there is no printer, a PDF file. False: cancelled.
    virtual bool askPrinter(QPrinter& printer, QWidget* parent);
    // The file to save to and its type, code page 950 first. A file that exists is not asked about. Nothing:
    // cancelled.
    virtual std::optional<OutputTarget> askFile(BKQuoteInterface& backEnd, QWidget* parent);
};

}  // namespace wirepane
