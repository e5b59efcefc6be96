// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/news_row_files.h"
#include "host/views/news_output.h"

#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

class BKQuoteInterface;
class QProgressDialog;
class QWidget;

namespace wirepane {

// Writes the news of a list to a file for other programs, by the ending of its name: rows by the back end,
// where it is a NewsRowFiles, text as it is saved. One file at a time. Interface thread only.
class RowsExport {
public:
    struct Calls {
        std::function<void(const QString&)> tell;  // a sentence for the user
        std::function<void(const std::vector<CHeadlineTable>&, const OutputTarget&)> saveText;
    };
    RowsExport(BKQuoteInterface& newsBackEnd, QWidget& viewWindow, Calls given);
    // What is being written is stopped.
    ~RowsExport();
    RowsExport(const RowsExport&) = delete;
    RowsExport& operator=(const RowsExport&) = delete;

    // Not while a file is being written.
    bool isPossible() const;
    // Asks the user for the file; the view may go meanwhile. Nothing happens without entries.
    void ask(std::vector<CHeadlineTable> entries);
    void write(std::vector<CHeadlineTable> entries, const QString& file);

private:
    void showProgress(int most);
    void finish(const QString& file, const RowFileOutcome& outcome);
    QString sentenceOf(const QString& file, const RowFileOutcome& outcome) const;

    BKQuoteInterface& backEnd;
    QWidget& window;
    const Calls calls;
    std::shared_ptr<const void> writing;
    QPointer<QProgressDialog> progress;
};

}  // namespace wirepane
