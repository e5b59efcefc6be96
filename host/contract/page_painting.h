// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/page_font.h"
#include "host/contract/printed_page.h"

#include <QFont>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QStringList>

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

class QPainter;

namespace wirepane {

// Pages, and where they go: into a PDF file, or onto a device. Whoever asks and whoever paints share it; what
// is not atomic is written before it is handed over, and by nobody afterwards.
struct PagesToPaint {
    std::vector<PrintedPage> pages;
    QStringList families;  // of the font of every text: the first that has a character draws it
    int times = 1;         // all of them so often, one after the other

    // A PDF file with its title and paper. A file of this name stays as it is unless the new one is complete.
    QString file;
    QString title;
    QPageLayout layout;
    // Otherwise the device, and what makes it drop what it has been given.
    std::shared_ptr<QPagedPaintDevice> device;
    std::function<void()> abort;

    std::atomic<int> painted = 0;       // pages; any thread
    std::atomic<bool> stopped = false;  // ends the painting at the next page; any thread

    int count() const { return static_cast<int>(pages.size()) * times; }
};

enum class PaintResult {
    Complete,
    Stopped,  // nothing is left of it
    Failed,   // the device refuses, or the file cannot be written
};

struct PaintOutcome {
    PaintResult result = PaintResult::Complete;
    QString why;  // a file could not be written; empty for a device
};

// The resolution of a PDF file, which its pages are laid out for.
inline constexpr int pdfResolution = 1200;

// Paints the pages. Any thread, one at a time for each PagesToPaint.
WIREPANE_CONTRACT_EXPORT PaintOutcome paintPages(PagesToPaint& job);

// Draws pages, each from the painter's origin on. Fonts are made once: finding their faces costs more than
// drawing a line. For painters of one device, on one thread.
class WIREPANE_CONTRACT_EXPORT PageDrawing {
public:
    // `families` as of PagesToPaint; the pages are laid out for so many dots an inch.
    PageDrawing(QStringList families, int dotsPerInch);

    void draw(QPainter& painter, const PrintedPage& page);

private:
    struct Face {
        QFont font;
        int ascent = 0;
    };

    void drawFrame(QPainter& painter, const QRect& frame) const;
    void drawText(QPainter& painter, const PlacedText& text);

    QStringList families;
    int frameWidth;
    std::map<std::pair<int, Shaping>, Face> faces;
};

// What a host may offer: a thread of its own on which printed pages are painted, so that its windows go on
// meanwhile. The module makes the pages a few at a time from the event loop and hands them over; without a
// painter it makes and paints them in one go, within the call that asks for them. Interface thread.
class WIREPANE_CONTRACT_EXPORT PagePainter {
public:
    PagePainter() = default;
    PagePainter(const PagePainter&) = delete;
    PagePainter& operator=(const PagePainter&) = delete;
    virtual ~PagePainter();  // uninstalls itself when it is the installed one

    // Null while a host has installed none. Not owned.
    static PagePainter* installed();
    static void install(PagePainter* painter);

    // Takes the pages over: has paintPages called on another thread, and calls `told` with what came of it on
    // the interface thread, once, after this has returned. Who asked may be gone by then, and a painter that
    // goes tells nobody.
    virtual void paint(const std::shared_ptr<PagesToPaint>& pages,
                       std::function<void(const PaintOutcome&)> told) = 0;
};

}  // namespace wirepane
