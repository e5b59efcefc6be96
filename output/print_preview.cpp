// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/print_preview.h"

#include "headline_list/language_keys.h"
#include "host/controls/screen_room.h"
#include "output/output_run.h"
#include "output/page_printing.h"
#include "output/page_view.h"

#include <QBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr QSize usualSize{900, 800};
constexpr int edge = 8;
constexpr int between = 4;
constexpr int group = 16;  // between groups of tools
constexpr double largerBy = 1.25;
constexpr int hundredths = 100;

// Makes the pages a few at a time.
class PageRun : public OutputRun {
public:
    PageRun(Told whoIsTold, QPrinter& printer, BKQuoteInterface& backEnd, const OutputItems& items)
        : OutputRun(std::move(whoIsTold)), making(printer, backEnd, items) {}

    void stop() override { isStopped = true; }
    double progress() const override { return making.progress(); }
    std::vector<PrintedPage> takePages() { return making.takePages(); }

protected:
    bool step() override {
        if (!isStopped && making.step())
            return true;
        end({});
        return false;
    }

private:
    PageMaking making;
    bool isStopped = false;
};

}  // namespace

PrintPreview::PrintPreview(BKQuoteInterface& newsBackEnd, const OutputItems& items, QWidget* parent)
    : QDialog(parent), backEnd(newsBackEnd), printer(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    setWindowTitle(langText(backEnd, keys::previewCaption));
    view = new PageView(PageView::paperOf(*printer), pageFamilies(backEnd), this);
    view->setAccessibleName(windowTitle());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeTools());
    column->addWidget(view, 1);
    progress = new QProgressBar(this);
    progress->setTextVisible(false);
    progress->hide();
    column->addWidget(progress);
    connect(view, &PageView::moved, this, [this] { tellPlace(); });
    making = std::make_unique<PageRun>(
        OutputRun::Told{{}, [this] { tellProgress(); }, [this](const NewsOutcome&) { showPages(); }},
        *printer, backEnd, items);
    tellPlace();
    view->setFocus();
    resize(withinScreen(*this, usualSize));
}

PrintPreview::~PrintPreview() = default;

QWidget* PrintPreview::makeTools() {
    auto* row = new QWidget(this);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(edge, edge, edge, edge);
    line->setSpacing(between);
    addTool(*row, LineIcon::Prev, keys::previewPreviousPage, {},
            [this] { view->showPage(view->currentPage() - 1); });
    addTool(*row, LineIcon::Next, keys::previewNextPage, {},
            [this] { view->showPage(view->currentPage() + 1); });
    place = new QLabel(row);
    line->addWidget(place);
    line->addSpacing(group);
    addTool(*row, LineIcon::Smaller, keys::previewSmaller, QKeySequence::ZoomOut,
            [this] { view->zoomBy(1 / largerBy); });
    addTool(*row, LineIcon::Larger, keys::previewLarger, QKeySequence::ZoomIn,
            [this] { view->zoomBy(largerBy); });
    addButton(*row, keys::previewFitWidth, [this] { view->setFit(PageView::Fit::Width); });
    addButton(*row, keys::previewWholePage, [this] { view->setFit(PageView::Fit::WholePage); });
    line->addStretch(1);
    print = addButton(*row, keys::storyPrint, [this] { accept(); });
    print->setEnabled(false);
    addButton(*row, keys::previewClose, [this] { reject(); });
    return row;
}

void PrintPreview::addTool(QWidget& row, LineIcon icon, QLatin1StringView text, const QKeySequence& key,
                           const std::function<void()>& act) {
    auto* tool = new QToolButton(&row);
    const QString name = langText(backEnd, text);
    tool->setIcon(lineIcon(icon));
    tool->setAutoRaise(true);
    tool->setFocusPolicy(Qt::StrongFocus);
    tool->setShortcut(key);
    tool->setAccessibleName(name);
    tool->setToolTip(key.isEmpty() ? name : u"%1 (%2)"_s.arg(name, key.toString(QKeySequence::NativeText)));
    connect(tool, &QToolButton::clicked, this, act);
    row.layout()->addWidget(tool);
}

QAbstractButton* PrintPreview::addButton(QWidget& row, QLatin1StringView text,
                                         const std::function<void()>& act) {
    auto* button = new QPushButton(langText(backEnd, text), &row);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, act);
    row.layout()->addWidget(button);
    return button;
}

void PrintPreview::tellPlace() {
    const bool isMade = making == nullptr;
    const QString text =
        isMade ? langText(backEnd, keys::previewPage)
                     .arg(QString::number(view->currentPage()), QString::number(view->pageCount()))
               : langText(backEnd, keys::previewMaking);
    place->setText(text);
    view->setAccessibleDescription(text);
}

void PrintPreview::tellProgress() {
    progress->setRange(0, hundredths);
    progress->setValue(static_cast<int>(std::lround(making->progress() * hundredths)));
    progress->show();
}

void PrintPreview::showPages() {
    auto pages = static_cast<PageRun&>(*making).takePages();
    making.release()->deleteLater();
    progress->hide();
    print->setEnabled(!pages.empty());
    view->setPages(std::move(pages));
}

}  // namespace wirepane
