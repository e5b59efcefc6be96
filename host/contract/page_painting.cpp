// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/page_painting.h"

#include "host/contract/pdf_characters.h"
#include "host/contract/whole_file.h"

#include <QBuffer>
#include <QFontMetrics>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int framesPerInch = 150;  // a frame is drawn that fraction of an inch wide
constexpr int anySize = 16;         // of the font whose characters are named: they have the same faces in all

PagePainter* installedPainter = nullptr;

// False: the device refuses, or the job was stopped.
bool draw(QPagedPaintDevice& device, const std::vector<PrintedPage>& pages, const QStringList& families,
          int times, const std::function<bool()>& beforePage) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    PageDrawing drawing(families, device.logicalDpiY());
    bool isFirst = true;
    for (int time = 0; time < times; ++time) {
        for (const PrintedPage& page : pages) {
            if (!beforePage() || (!isFirst && !device.newPage()))
                return false;
            isFirst = false;
            drawing.draw(painter, page);
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

PageDrawing::PageDrawing(QStringList fontFamilies, int dotsPerInch)
    : families(std::move(fontFamilies)), frameWidth(std::max(dotsPerInch / framesPerInch, 1)) {}

void PageDrawing::draw(QPainter& painter, const PrintedPage& page) {
    painter.setPen(QPen(Qt::black, frameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    for (const QRect& frame :
         {page.frames.outer, page.frames.inner, page.frames.footer, page.frames.title, page.frames.body})
        drawFrame(painter, frame);
    for (const PlacedText* text : {&page.date, &page.pageNumber, &page.heading})
        drawText(painter, *text);
    for (const std::vector<PlacedText>* lines : {&page.title, &page.body}) {
        for (const PlacedText& line : *lines)
            drawText(painter, line);
    }
}

// The frame lies inside its rectangle.
void PageDrawing::drawFrame(QPainter& painter, const QRect& frame) const {
    const int half = frameWidth / 2;
    painter.drawRect(frame.adjusted(half, half, half - frameWidth, half - frameWidth));
}

void PageDrawing::drawText(QPainter& painter, const PlacedText& text) {
    const auto [face, isNew] = faces.try_emplace({text.pixelSize, shapingFor(text.text)});
    if (isNew) {
        face->second.font = pageFont(families, text.pixelSize, face->first.second);
        face->second.ascent = QFontMetrics(face->second.font, painter.device()).ascent();
    }
    painter.setFont(face->second.font);
    painter.drawText(text.topLeft + QPoint(0, face->second.ascent), text.text);
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
