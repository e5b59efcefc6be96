// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/line_icon.h"
#include "output/output_item.h"

#include <QDialog>

#include <functional>
#include <memory>

class BKQuoteInterface;
class QAbstractButton;
class QKeySequence;
class QLabel;
class QPrinter;
class QProgressBar;

namespace wirepane {
class OutputRun;
class PageView;

// Shows the pages that would be printed on the user's printer, or on A4 paper without one. It opens at once;
// the pages are made from the event loop. Accepted: the user wants them printed.
class PrintPreview : public QDialog {
    Q_OBJECT

public:
    // The back end outlives it.
    PrintPreview(BKQuoteInterface& backEnd, const OutputItems& items, QWidget* parent);
    ~PrintPreview() override;

private:
    QWidget* makeTools();
    void addTool(QWidget& row, LineIcon icon, QLatin1StringView text, const QKeySequence& key,
                 const std::function<void()>& act);
    QAbstractButton* addButton(QWidget& row, QLatin1StringView text, const std::function<void()>& act);
    void tellPlace();
    void tellProgress();
    void showPages();

    BKQuoteInterface& backEnd;
    const std::unique_ptr<QPrinter> printer;  // that the pages are laid out for
    PageView* view = nullptr;
    QLabel* place = nullptr;
    QAbstractButton* print = nullptr;
    QProgressBar* progress = nullptr;
    std::unique_ptr<OutputRun> making;  // until the pages are shown
};

}  // namespace wirepane
