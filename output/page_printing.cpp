// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/page_printing.h"

#include "headline_list/language_keys.h"
#include "host/contract/clock.h"
#include "host/controls/heap_dialog.h"
#include "output/page_font.h"
#include "output/pdf_characters.h"
#include "output/whole_file.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFontMetrics>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include <algorithm>
#include <map>

namespace wirepane {

namespace {

constexpr int pointSize = 12;
constexpr int pointsPerInch = 72;
constexpr int framesPerInch = 150;  // a frame is drawn that fraction of an inch wide
constexpr int pdfResolution = 1200;
constexpr qreal pdfMarginMm = 10;
constexpr QSize previewSize{900, 800};

class DeviceMeasure : public TextMeasure {
public:
    DeviceMeasure(QPagedPaintDevice& paintDevice, BKQuoteInterface& newsBackEnd)
        : device(paintDevice), backEnd(newsBackEnd) {}

    int lineHeight(int pixelSize) const override {
        const QFontMetrics metrics = metricsOf(pixelSize, Shaping::None);
        return metrics.height() + std::max(metrics.leading(), 0);
    }
    int width(const QString& text, int pixelSize) const override {
        return metricsOf(pixelSize, shapingFor(text)).horizontalAdvance(text);
    }

private:
    const QFontMetrics& metricsOf(int pixelSize, Shaping shaping) const {
        const auto found = known.find({pixelSize, shaping});
        if (found != known.end())
            return found->second;
        const QFontMetrics metrics(pageFont(backEnd, pixelSize, shaping), &device);
        return known.emplace(std::pair(pixelSize, shaping), metrics).first->second;
    }

    QPagedPaintDevice& device;
    BKQuoteInterface& backEnd;
    mutable std::map<std::pair<int, Shaping>, QFontMetrics> known;
};

void drawText(QPainter& painter, BKQuoteInterface& backEnd, const PlacedText& text) {
    painter.setFont(pageFont(backEnd, text.pixelSize, shapingFor(text.text)));
    painter.drawText(text.topLeft + QPoint(0, painter.fontMetrics().ascent()), text.text);
}

// The frame lies inside its rectangle.
void drawFrame(QPainter& painter, const QRect& frame, int width) {
    const int half = width / 2;
    painter.drawRect(frame.adjusted(half, half, half - width, half - width));
}

void drawPage(QPainter& painter, BKQuoteInterface& backEnd, const PrintedPage& page) {
    const int width = std::max(painter.device()->logicalDpiY() / framesPerInch, 1);
    painter.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    for (const QRect& frame :
         {page.frames.outer, page.frames.inner, page.frames.footer, page.frames.title, page.frames.body})
        drawFrame(painter, frame, width);
    for (const PlacedText& text : {page.date, page.pageNumber, page.heading})
        drawText(painter, backEnd, text);
    for (const std::vector<PlacedText>& lines : {page.title, page.body}) {
        for (const PlacedText& line : lines)
            drawText(painter, backEnd, line);
    }
}

NewsOutcome failure(BKQuoteInterface& backEnd, const QString& where, const QString& why) {
    NewsOutcome outcome;
    outcome.failed = true;
    outcome.message = langText(backEnd, keys::printFailed).arg(where, why);
    return outcome;
}

std::optional<QPageSize> paperNamed(const QString& name) {
    if (name.isEmpty())
        return QPageSize(QPageSize::A4);
    for (int id = 0; id <= QPageSize::LastPageSize; ++id) {
        const auto pageSize = static_cast<QPageSize::PageSizeId>(id);
        if (QPageSize::key(pageSize).compare(name, Qt::CaseInsensitive) == 0)
            return QPageSize(pageSize);
    }
    return std::nullopt;
}

QString charactersOf(const std::vector<PrintedPage>& pages) {
    QString characters;
    for (const PrintedPage& page : pages) {
        characters += page.heading.text + page.date.text + page.pageNumber.text;
        for (const auto* lines : {&page.title, &page.body}) {
            for (const PlacedText& line : *lines)
                characters += line.text;
        }
    }
    return characters;
}

NewsOutcome writePdf(const QString& file, const QPageLayout& layout, BKQuoteInterface& backEnd,
                     const OutputItems& items) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    NewsOutcome outcome;
    QString drawn;
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(langText(backEnd, keys::printDocument));
        writer.setResolution(pdfResolution);
        writer.setPageLayout(layout);
        const auto pages = pagesOn(writer, backEnd, items);
        if (pages.empty() || !drawPages(writer, backEnd, pages))
            return outcome;
        outcome.count = static_cast<int>(pages.size());
        drawn = charactersOf(pages);
    }
    QByteArray& pdf = buffer.buffer();
    nameDrawnCharacters(pdf, drawn, pageFont(backEnd, pointSize, Shaping::None));
    if (const auto why = writeWholeFile(file, pdf))
        return failure(backEnd, QDir::toNativeSeparators(file), *why);
    return outcome;
}

}  // namespace

std::vector<PrintedPage> pagesOn(QPagedPaintDevice& device, BKQuoteInterface& backEnd,
                                 const OutputItems& items) {
    const QDateTime now = QDateTime::fromSecsSinceEpoch(host_clock::now());
    const PageTexts texts{langText(backEnd, keys::printHeading),
                          now.toString(QStringLiteral("yyyy/MM/dd HH:mm"))};
    const PageSize size{device.width(), device.height(), device.widthMM(), device.heightMM()};
    const int pixelSize = (2 * pointSize * device.logicalDpiY() + pointsPerInch) / (2 * pointsPerInch);
    return layOutPages(items, size, texts, pixelSize, DeviceMeasure(device, backEnd));
}

bool drawPages(QPagedPaintDevice& device, BKQuoteInterface& backEnd, const std::vector<PrintedPage>& pages) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0 && !device.newPage())
            return false;
        drawPage(painter, backEnd, pages[i]);
    }
    return painter.end();
}

NewsOutcome printItems(QPrinter& printer, BKQuoteInterface& backEnd, const OutputItems& items) {
    if (!printer.outputFileName().isEmpty())
        return writePdf(printer.outputFileName(), printer.pageLayout(), backEnd, items);
    printer.setDocName(langText(backEnd, keys::printDocument));
    const auto pages = pagesOn(printer, backEnd, items);
    NewsOutcome outcome;
    if (pages.empty())
        return outcome;
    // A printer that makes no copies by itself is given all pages again.
    const int times = printer.supportsMultipleCopies() ? 1 : std::max(printer.copyCount(), 1);
    std::vector<PrintedPage> all;
    for (int i = 0; i < times; ++i)
        all.insert(all.end(), pages.begin(), pages.end());
    if (!printer.isValid() || !drawPages(printer, backEnd, all) || printer.printerState() == QPrinter::Error)
        return failure(backEnd, printer.printerName(), langText(backEnd, keys::printerGone));
    outcome.count = static_cast<int>(pages.size());
    return outcome;
}

NewsOutcome printItemsToPdf(const OutputTarget& target, BKQuoteInterface& backEnd, const OutputItems& items) {
    const auto paper = paperNamed(target.paper);
    if (!paper)
        return failure(backEnd, QDir::toNativeSeparators(target.file),
                       langText(backEnd, keys::noSuchPaper).arg(target.paper));
    const QMarginsF margins(pdfMarginMm, pdfMarginMm, pdfMarginMm, pdfMarginMm);
    return writePdf(target.file, QPageLayout(*paper, QPageLayout::Portrait, margins, QPageLayout::Millimeter),
                    backEnd, items);
}

void previewItems(BKQuoteInterface& backEnd, const OutputItems& items, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(langText(backEnd, keys::printDocument));
    const HeapDialog dialog(new QPrintPreviewDialog(&printer, parent));
    QObject::connect(dialog.get(), &QPrintPreviewDialog::paintRequested, dialog.get(),
                     [&backEnd, &items](QPrinter* device) {
                         drawPages(*device, backEnd, pagesOn(*device, backEnd, items));
                     });
    dialog->resize(previewSize);
    dialog->exec();
}

}  // namespace wirepane
