// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/page_printing.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/page_font.h"
#include "host/contract/sync_info.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFontMetrics>
#include <QPdfWriter>
#include <QPrinter>

#include <algorithm>
#include <map>
#include <optional>

namespace wirepane {

namespace {

constexpr int pointSize = 12;
constexpr int pointsPerInch = 72;
constexpr int longestFaceName = 31;
constexpr qreal pdfMarginMm = 10;

class DeviceMeasure : public TextMeasure {
public:
    DeviceMeasure(QPagedPaintDevice& paintDevice, QStringList fontFamilies)
        : device(paintDevice), families(std::move(fontFamilies)) {}

    int lineHeight(int pixelSize) const override {
        const QFontMetrics& metrics = metricsOf(pixelSize, Shaping::None);
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
        const QFontMetrics metrics(pageFont(families, pixelSize, shaping), &device);
        return known.emplace(std::pair(pixelSize, shaping), metrics).first->second;
    }

    QPagedPaintDevice& device;
    const QStringList families;
    mutable std::map<std::pair<int, Shaping>, QFontMetrics> known;
};

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

std::shared_ptr<PagesToPaint> pdfPages(const QString& file, const QPageLayout& layout,
                                       BKQuoteInterface& backEnd) {
    auto pages = std::make_shared<PagesToPaint>();
    pages->families = pageFamilies(backEnd);
    pages->file = file;
    pages->title = langText(backEnd, keys::printDocument);
    pages->layout = layout;
    return pages;
}

}  // namespace

QStringList pageFamilies(BKQuoteInterface& backEnd) {
    return QStringList{langText(backEnd, keys::printFont).left(longestFaceName)} +
           CSyncInfo::GetSettingCFG()->SYS_fntGetViewFont().families();
}

std::shared_ptr<PagesToPaint> pagesFor(const std::shared_ptr<QPrinter>& printer, BKQuoteInterface& backEnd) {
    if (!printer->outputFileName().isEmpty())
        return pdfPages(printer->outputFileName(), printer->pageLayout(), backEnd);
    printer->setDocName(langText(backEnd, keys::printDocument));
    auto pages = std::make_shared<PagesToPaint>();
    pages->families = pageFamilies(backEnd);
    // A printer that makes no copies by itself is given all pages again.
    pages->times = printer->supportsMultipleCopies() ? 1 : std::max(printer->copyCount(), 1);
    pages->device = printer;
    pages->abort = [printer = printer.get()] { printer->abort(); };
    return pages;
}

std::variant<std::shared_ptr<PagesToPaint>, NewsOutcome> pagesForPdf(const OutputTarget& target,
                                                                     BKQuoteInterface& backEnd) {
    const auto paper = paperNamed(target.paper);
    if (!paper)
        return failure(backEnd, QDir::toNativeSeparators(target.file),
                       langText(backEnd, keys::noSuchPaper).arg(target.paper));
    const QMarginsF margins(pdfMarginMm, pdfMarginMm, pdfMarginMm, pdfMarginMm);
    return pdfPages(target.file, QPageLayout(*paper, QPageLayout::Portrait, margins, QPageLayout::Millimeter),
                    backEnd);
}

// A PDF's paper. Nothing is written.
struct PageMaking::PdfPaper {
    explicit PdfPaper(const QPageLayout& layout) : writer(&nowhere) {
        writer.setResolution(pdfResolution);
        writer.setPageLayout(layout);
    }

    QBuffer nowhere;
    QPdfWriter writer;
};

PageMaking::PageMaking(const PagesToPaint& destination, BKQuoteInterface& backEnd, const OutputItems& items)
    : paper(destination.device != nullptr ? nullptr : std::make_unique<PdfPaper>(destination.layout)),
      maker(makerOn(paper != nullptr ? static_cast<QPagedPaintDevice&>(paper->writer) : *destination.device,
                    backEnd, items)) {}

PageMaking::PageMaking(QPagedPaintDevice& device, BKQuoteInterface& backEnd, const OutputItems& items)
    : maker(makerOn(device, backEnd, items)) {}

PageMaking::~PageMaking() = default;

std::unique_ptr<PageMaker> PageMaking::makerOn(QPagedPaintDevice& device, BKQuoteInterface& backEnd,
                                               const OutputItems& items) {
    const QDateTime now = QDateTime::fromSecsSinceEpoch(host_clock::now());
    const PageTexts texts{langText(backEnd, keys::printHeading),
                          now.toString(QStringLiteral("yyyy/MM/dd HH:mm"))};
    const PageSize size{device.width(), device.height(), device.widthMM(), device.heightMM()};
    const int pixelSize = (2 * pointSize * device.logicalDpiY() + pointsPerInch) / (2 * pointsPerInch);
    measure = std::make_unique<DeviceMeasure>(device, pageFamilies(backEnd));
    return std::make_unique<PageMaker>(items, size, texts, pixelSize, *measure);
}

std::vector<PrintedPage> PageMaking::allPages() {
    while (step())
        continue;
    return takePages();
}

NewsOutcome outcomeOf(const PagesToPaint& pages, const PaintOutcome& painted, BKQuoteInterface& backEnd) {
    const auto* printer = static_cast<const QPrinter*>(pages.device.get());
    NewsOutcome outcome;
    outcome.failed = painted.result == PaintResult::Stopped;
    if (outcome.failed)
        return outcome;
    if (printer == nullptr && painted.result == PaintResult::Failed)
        return failure(backEnd, QDir::toNativeSeparators(pages.file), painted.why);
    if (printer != nullptr &&
        (painted.result == PaintResult::Failed || printer->printerState() == QPrinter::Error))
        return failure(backEnd, printer->printerName(), langText(backEnd, keys::printerGone));
    outcome.count = static_cast<int>(pages.pages.size());
    return outcome;
}

NewsOutcome printInOneGo(const std::shared_ptr<PagesToPaint>& pages, BKQuoteInterface& backEnd,
                         const OutputItems& items) {
    pages->pages = PageMaking(*pages, backEnd, items).allPages();
    return pages->pages.empty() ? NewsOutcome() : outcomeOf(*pages, paintPages(*pages), backEnd);
}

NewsOutcome printItemsToPdf(const OutputTarget& target, BKQuoteInterface& backEnd, const OutputItems& items) {
    const auto pages = pagesForPdf(target, backEnd);
    if (const auto* cannot = std::get_if<NewsOutcome>(&pages))
        return *cannot;
    return printInOneGo(std::get<0>(pages), backEnd, items);
}

}  // namespace wirepane
