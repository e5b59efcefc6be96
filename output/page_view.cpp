// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/page_view.h"

#include <QKeyEvent>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace wirepane {

namespace {

constexpr int gap = 12;  // around a page
constexpr double smallestZoom = 0.1;
constexpr double largestZoom = 5;
constexpr double wheelFactor = 1.1;  // of a step of the wheel
constexpr double wheelStep = QWheelEvent::DefaultDeltasPerStep;
constexpr int scrolledLine = 40;

}  // namespace

PageView::Paper PageView::paperOf(const QPrinter& printer) {
    const QPageLayout layout = printer.pageLayout();
    const int resolution = printer.resolution();
    return {layout.fullRectPixels(resolution).size(), layout.paintRectPixels(resolution).topLeft(),
            resolution};
}

PageView::PageView(const Paper& pagesPaper, const QStringList& families, QWidget* parent)
    : QAbstractScrollArea(parent), paper(pagesPaper), drawing(families, pagesPaper.dotsPerInch) {
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // With a bar that comes and goes the fitting width would come and go, too.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalScrollBar()->setSingleStep(scrolledLine);
    horizontalScrollBar()->setSingleStep(scrolledLine);
    scaleTo(fittingScale());
}

void PageView::setPages(std::vector<PrintedPage> shown) {
    pages = std::move(shown);
    setRanges();
    verticalScrollBar()->setValue(0);
    viewport()->update();
    emit moved();
}

int PageView::currentPage() const {
    if (pages.empty())
        return 0;
    const int middle = verticalScrollBar()->value() + viewport()->height() / 2;
    return std::clamp((middle - gap / 2) / pageStep() + 1, 1, pageCount());
}

void PageView::showPage(int number) {
    verticalScrollBar()->setValue((std::clamp(number, 1, std::max(pageCount(), 1)) - 1) * pageStep());
}

void PageView::setFit(Fit fitted) {
    fit = fitted;
    scaleTo(fittingScale());
}

void PageView::zoomBy(double factor) {
    fit = Fit::None;
    scaleTo(scale * factor);
}

double PageView::zoom() const {
    return scale * paper.dotsPerInch / logicalDpiY();
}

QSize PageView::shownPaper() const {
    return (QSizeF(paper.size) * scale).toSize();
}

int PageView::pageStep() const {
    return shownPaper().height() + gap;
}

double PageView::fittingScale() const {
    const double wide = static_cast<double>(viewport()->width() - 2 * gap) / paper.size.width();
    if (fit == Fit::None)
        return scale;
    if (fit == Fit::Width)
        return wide;
    return std::min(wide, static_cast<double>(viewport()->height() - 2 * gap) / paper.size.height());
}

// What stands at the upper edge stays there.
void PageView::scaleTo(double wanted) {
    const double natural = static_cast<double>(logicalDpiY()) / paper.dotsPerInch;
    const double page = scale > 0 ? static_cast<double>(verticalScrollBar()->value()) / pageStep() : 0;
    scale = std::clamp(wanted, smallestZoom * natural, largestZoom * natural);
    setRanges();
    verticalScrollBar()->setValue(static_cast<int>(std::lround(page * pageStep())));
    viewport()->update();
    emit moved();
}

void PageView::setRanges() {
    const QSize seen = viewport()->size();
    verticalScrollBar()->setRange(0, std::max(gap + pageCount() * pageStep() - seen.height(), 0));
    verticalScrollBar()->setPageStep(std::max(seen.height(), 1));
    horizontalScrollBar()->setRange(0, std::max(shownPaper().width() + 2 * gap - seen.width(), 0));
    horizontalScrollBar()->setPageStep(std::max(seen.width(), 1));
}

void PageView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().mid());
    const QSize shown = shownPaper();
    const int left =
        std::max((viewport()->width() - shown.width()) / 2, gap) - horizontalScrollBar()->value();
    const int above = verticalScrollBar()->value();
    const int first = std::max((above + event->rect().top() - gap) / pageStep(), 0);
    for (int page = first; page < pageCount(); ++page) {
        const QRect place(QPoint(left, gap + page * pageStep() - above), shown);
        if (place.top() > event->rect().bottom())
            break;
        painter.fillRect(place, Qt::white);
        painter.save();
        painter.setClipRect(place);
        painter.translate(place.topLeft());
        painter.scale(scale, scale);
        painter.translate(paper.printable);
        drawing.draw(painter, pages[static_cast<std::size_t>(page)]);
        painter.restore();
    }
}

void PageView::resizeEvent(QResizeEvent*) {
    scaleTo(fittingScale());
}

void PageView::scrollContentsBy(int, int) {
    viewport()->update();
    emit moved();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    zoomBy(std::pow(wheelFactor, event->angleDelta().y() / wheelStep));
    event->accept();
}

void PageView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_PageUp:
            showPage(currentPage() - 1);
            break;
        case Qt::Key_PageDown:
            showPage(currentPage() + 1);
            break;
        case Qt::Key_Home:
            showPage(1);
            break;
        case Qt::Key_End:
            showPage(pageCount());
            break;
        default:
            QAbstractScrollArea::keyPressEvent(event);
    }
}

}  // namespace wirepane
