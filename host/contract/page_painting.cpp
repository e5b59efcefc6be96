// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/page_painting.h"

#include "host/contract/page_font.h"
#include "host/contract/pdf_characters.h"
#include "host/contract/whole_file.h"

#include <QBuffer>
#include <QFontMetrics>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <map>

namespace wirepane {

namespace {

constexpr int framesPerInch = 150;  // a frame is drawn that fraction of an inch wide
constexpr int anySize = 16;         // of the font whose characters are named: they have the same faces in all

PagePainter* installedPainter = nullptr;

// Draws pages on one device. Fonts are made once: finding their faces costs more than drawing a line.
class PageDrawing {
public:
    PageDrawing(QPainter& pagePainter, const QStringList& fontFamilies)
        : painter(pagePainter), families(fontFamilies) {}

    void draw(const PrintedPage& page) {
        const int width = std::max(painter.device()->logicalDpiY() / framesPerInch, 1);
        painter.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        for (const QRect& frame :
             {page.frames.outer, page.frames.inner, page.frames.footer, page.frames.title, page.frames.body})
            draw(frame, width);
        for (const PlacedText* text : {&page.date, &page.pageNumber, &page.heading})
            draw(*text);
        for (const std::vector<PlacedText>* lines : {&page.title, &page.body}) {
            for (const PlacedText& line : *lines)
                draw(line);
        }
    }

private:
    struct Face {
        QFont font;
        int ascent = 0;
    };

    // The frame lies inside its rectangle.
    void draw(const QRect& frame, int width) {
        const int half = width / 2;
        painter.drawRect(frame.adjusted(half, half, half - width, half - width));
    }
    void draw(const PlacedText& text) {
        const Face& face = faceOf(text.pixelSize, shapingFor(text.text));
        painter.setFont(face.font);
        painter.drawText(text.topLeft + QPoint(0, face.ascent), text.text);
    }
    const Face& faceOf(int pixelSize, Shaping shaping) {
        const auto [face, isNew] = faces.try_emplace({pixelSize, shaping});
        if (isNew) {
            face->second.font = pageFont(families, pixelSize, shaping);
            face->second.ascent = QFontMetrics(face->second.font, painter.device()).ascent();
        }
        return face->second;
    }

    QPainter& painter;
    const QStringList& families;
    std::map<std::pair<int, Shaping>, Face> faces;
};

// False: the device refuses, or the job was stopped.
bool draw(QPagedPaintDevice& device, const std::vector<PrintedPage>& pages, const QStringList& families,
          int times, const std::function<bool()>& beforePage) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    PageDrawing drawing(painter, families);
    bool isFirst = true;
    for (int time = 0; time < times; ++time) {
        for (const PrintedPage& page : pages) {
            if (!beforePage() || (!isFirst && !device.newPage()))
                return false;
            isFirst = false;
            drawing.draw(page);
        }
    }
    return painter.end();
}

// Every character that is drawn, once.
QString charactersOf(const std::vector<PrintedPage>& pages) {
    std::vector<bool> drawn(0x10000);
    const auto note = [&](const PlacedText& text) {
        for (const QChar character : text.text)
            drawn[character.unicode()] = true;
    };
    for (const PrintedPage& page : pages) {
        for (const PlacedText* text : {&page.heading, &page.date, &page.pageNumber})
            note(*text);
        for (const std::vector<PlacedText>* lines : {&page.title, &page.body})
            std::for_each(lines->begin(), lines->end(), note);
    }
    QString characters;
    for (std::size_t character = 0; character < drawn.size(); ++character) {
        if (drawn[character])
            characters += QChar(static_cast<char16_t>(character));
    }
    return characters;
}

PaintOutcome writePdf(PagesToPaint& job, const std::function<bool()>& goesOn) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(job.title);
        writer.setResolution(pdfResolution);
        writer.setPageLayout(job.layout);
        if (!draw(writer, job.pages, job.families, job.times, goesOn))
            return {job.stopped ? PaintResult::Stopped : PaintResult::Failed, {}};
    }
    QByteArray& pdf = buffer.buffer();
    nameDrawnCharacters(pdf, charactersOf(job.pages), pageFont(job.families, anySize, Shaping::None));
    if (const auto why = writeWholeFile(job.file, pdf))
        return {PaintResult::Failed, *why};
    return {};
}

}  // namespace

PagePainter::~PagePainter() {
    if (installedPainter == this)
        installedPainter = nullptr;
}

PagePainter* PagePainter::installed() {
    return installedPainter;
}

void PagePainter::install(PagePainter* painter) {
    installedPainter = painter;
}

bool drawPages(QPagedPaintDevice& device, const std::vector<PrintedPage>& pages,
               const QStringList& families) {
    return draw(device, pages, families, 1, [] { return true; });
}

PaintOutcome paintPages(PagesToPaint& job) {
    const auto goesOn = [&job] {
        if (job.stopped)
            return false;
        ++job.painted;
        return true;
    };
    if (job.device == nullptr)
        return writePdf(job, goesOn);
    if (draw(*job.device, job.pages, job.families, job.times, [&] {
            const bool on = goesOn();
            if (!on && job.abort)
                job.abort();
            return on;
        }))
        return {};
    return {job.stopped ? PaintResult::Stopped : PaintResult::Failed, {}};
}

}  // namespace wirepane
