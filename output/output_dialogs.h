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

    // The name of a file without folder and suffix; what no file system takes is left out of it.
    void proposeName(const QString& name);

    // Lets the user choose the printer and its settings; no ranges of pages, several copies collated. Where
    // there is no printer, a PDF file. False: cancelled.
    virtual bool askPrinter(QPrinter& printer, QWidget* parent);
    // The file to save to and its type, code page 950 first. A file that exists is not asked about. Nothing:
    // cancelled.
    // It begins with the name that was proposed last.
    virtual std::optional<OutputTarget> askFile(BKQuoteInterface& backEnd, QWidget* parent);

private:
    QString proposal;
};

}  // namespace wirepane
