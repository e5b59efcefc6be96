// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/page_painting.h"

#include <QAbstractScrollArea>
#include <QPoint>
#include <QSize>
#include <QStringList>

#include <vector>

class QPrinter;

namespace wirepane {

// Printed pages on their paper, one below the other. Only those in sight are painted. Page Up and Down go a
// page of paper, Home and End to the first and the last; Ctrl with the wheel changes the size. Interface
// thread only.
class PageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    // In device pixels of the pages.
    struct Paper {
        QSize size;
        QPoint printable;  // the top left corner of what can be printed
        int dotsPerInch = 1;
    };
    static Paper paperOf(const QPrinter& printer);

    enum class Fit { None, Width, WholePage };

    // `families` as of PagesToPaint.
    PageView(const Paper& paper, const QStringList& families, QWidget* parent = nullptr);

    void setPages(std::vector<PrintedPage> shown);
    int pageCount() const { return static_cast<int>(pages.size()); }
    // From 1 on: the one in the middle of what is in sight. 0 without pages.
    int currentPage() const;
    // Scrolls to the page's upper edge; to the nearest page that there is.
    void showPage(int number);

    // The size follows the view's from here on.
    void setFit(Fit fitted);
    // A size of its own, `factor` times what it is; from a tenth of the paper's to five times.
    void zoomBy(double factor);
    // Of the paper's size.
    double zoom() const;

Q_SIGNALS:
    // Another page is the current one, or the size is another.
    void moved();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSize shownPaper() const;
    int pageStep() const;  // from one page's upper edge to the next one's
    double fittingScale() const;
    void scaleTo(double wanted);
    void setRanges();

    const Paper paper;
    PageDrawing drawing;
    std::vector<PrintedPage> pages;
    Fit fit = Fit::Width;
    double scale = 0;  // pixels of the screen for one of the pages
};

}  // namespace wirepane
