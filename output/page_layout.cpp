// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/page_layout.h"

#include "output/byte_lines.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr int headingBytes = 12;
constexpr int marginMm = 5;
constexpr int insetMm = 1;
constexpr int footerMm = 10;
constexpr int dateHeightMm = 6;
constexpr int dateInsetMm = 2;
constexpr int pageNumberInsetMm = 1;

// millimetres * pixels / size, rounded.
int pixelsOf(int millimetres, int pixels, int size) {
    return size > 0 ? (2 * millimetres * pixels + size) / (2 * size) : 0;
}

// A rectangle from its edges; right and bottom do not belong to it.
QRect edges(int left, int top, int right, int bottom) {
    return {left, top, right - left, bottom - top};
}

// The places that all pages have.
struct PagePlan {
    PageFrames frames;
    int inset = 0;  // between frame and frame, frame and text
    int dateRight = 0;
    int dateTop = 0;
    int numberLeft = 0;
};

PagePlan planOf(const PageSize& size) {
    const auto down = [&](int mm) { return pixelsOf(mm, size.height, size.heightMm); };
    const auto across = [&](int mm) { return pixelsOf(mm, size.width, size.widthMm); };
    PagePlan plan;
    plan.inset = down(insetMm);
    const int x = across(marginMm);
    const int y = down(marginMm);
    const int m = plan.inset;
    plan.frames.outer = edges(x - m, y - m, size.width - x + m, size.height - y + m);
    plan.frames.inner = edges(x, y, size.width - x, size.height - y - m - down(footerMm));
    plan.frames.title = edges(x + m, y + m, size.width - x - m, size.height / 4 + m);
    plan.frames.body =
        edges(x + m, size.height / 4 + 2 * m, size.width - x - m, size.height - y - 2 * m - down(footerMm));
    plan.frames.footer = edges(x, size.height - y - down(footerMm), size.width - x, size.height - y);
    plan.dateRight = size.width - x - across(dateInsetMm);
    plan.dateTop = size.height - y - down(dateHeightMm);
    plan.numberLeft = x + across(pageNumberInsetMm);
    return plan;
}

struct ItemLines {
    std::vector<QString> title;
    std::vector<std::vector<QString>> pages;
};

// The largest pixel size up to `wanted` at which `lines` lines, one line's space above them, and the widest
// text fit into the box.
int fittingSize(const QRect& box, int inset, int lines, const std::vector<QString>& texts, int wanted,
                const TextMeasure& measure) {
    const auto widest = std::max_element(texts.begin(), texts.end(), [&](const auto& a, const auto& b) {
        return measure.width(a, wanted) < measure.width(b, wanted);
    });
    const auto fits = [&](int size) {
        return measure.lineHeight(size) * (lines + 1) <= box.height() &&
               (widest == texts.end() || measure.width(*widest, size) <= box.width() - 2 * inset);
    };
    int smallest = 1;
    for (int above = wanted + 1; above - smallest > 1;) {
        const int middle = smallest + (above - smallest) / 2;
        (fits(middle) ? smallest : above) = middle;
    }
    return smallest;
}

// Line n of a box, from 0 on, stands n + 1 lines below its top.
std::vector<PlacedText> placeLines(const std::vector<QString>& lines, const QRect& box, int inset,
                                   int pixelSize, const TextMeasure& measure) {
    std::vector<PlacedText> placed;
    int y = box.top();
    for (const QString& line : lines) {
        y += measure.lineHeight(pixelSize);
        placed.push_back({QPoint(box.left() + inset, y), line, pixelSize});
    }
    return placed;
}

int middle(int from, int to, int length) {
    return from + (to - from - length) / 2;
}

struct FontSizes {
    int page = 0;
    int title = 0;
    int body = 0;
};

FontSizes sizesFor(const std::vector<ItemLines>& items, const PagePlan& plan, int pixelSize,
                   const TextMeasure& measure) {
    std::vector<QString> titles;
    std::vector<QString> bodies;
    std::size_t titleLines = 1;
    for (const ItemLines& item : items) {
        titleLines = std::max(titleLines, item.title.size());
        titles.insert(titles.end(), item.title.begin(), item.title.end());
        for (const auto& page : item.pages)
            bodies.insert(bodies.end(), page.begin(), page.end());
    }
    const auto fit = [&](const QRect& box, int lines, const std::vector<QString>& texts) {
        return fittingSize(box, plan.inset, lines, texts, pixelSize, measure);
    };
    return {pixelSize, fit(plan.frames.title, static_cast<int>(titleLines), titles),
            fit(plan.frames.body, bodyLinesPerPage, bodies)};
}

// The page without the texts of its story.
PrintedPage commonPage(const PagePlan& plan, const PageSize& size, const PageTexts& texts, int number,
                       int pixelSize, const TextMeasure& measure) {
    const int lineHeight = measure.lineHeight(pixelSize);
    const auto width = [&](const QString& text) { return measure.width(text, pixelSize); };
    const int footerBottom = plan.frames.footer.top() + plan.frames.footer.height();
    PrintedPage page;
    page.number = number;
    page.frames = plan.frames;
    page.heading = {QPoint(size.width * 2 / 5, 0), firstBytes(texts.heading, headingBytes).toString(),
                    pixelSize};
    page.date = {QPoint(plan.dateRight - width(texts.date), middle(plan.dateTop, footerBottom, lineHeight)),
                 texts.date, pixelSize};
    const QString numberText = QString::number(number);
    page.pageNumber = {QPoint(middle(plan.numberLeft, plan.dateRight, width(numberText)),
                              middle(plan.frames.footer.top(), footerBottom, lineHeight)),
                       numberText, pixelSize};
    return page;
}

QString withoutLineEnd(QStringView line) {
    while (!line.isEmpty() && (line.back() == u'\r' || line.back() == u'\n'))
        line.chop(1);
    return line.toString();
}

}  // namespace

std::vector<std::vector<QString>> bodyPages(QStringView story) {
    std::vector<std::vector<QString>> pages;
    while (!story.isEmpty()) {
        std::vector<QString>& page = pages.emplace_back();
        while (!story.isEmpty() && page.size() < bodyLinesPerPage)
            page.push_back(withoutLineEnd(takeLine(story)));
    }
    return pages;
}

std::vector<PrintedPage> layOutPages(const OutputItems& items, const PageSize& size, const PageTexts& texts,
                                     int pixelSize, const TextMeasure& measure) {
    std::vector<ItemLines> lines;
    for (const OutputItem& item : items) {
        ItemLines& itemLines = lines.emplace_back();
        for (const QStringView line : titleLines(item.title, item.wholeTitle))
            itemLines.title.push_back(line.toString());
        itemLines.pages = bodyPages(item.story);
    }
    const PagePlan plan = planOf(size);
    const FontSizes sizes = sizesFor(lines, plan, pixelSize, measure);
    std::vector<PrintedPage> pages;
    for (const ItemLines& item : lines) {
        int number = 0;
        for (const auto& body : item.pages) {
            PrintedPage page = commonPage(plan, size, texts, ++number, sizes.page, measure);
            page.title = placeLines(item.title, plan.frames.title, plan.inset, sizes.title, measure);
            page.body = placeLines(body, plan.frames.body, plan.inset, sizes.body, measure);
            pages.push_back(std::move(page));
        }
    }
    return pages;
}

}  // namespace wirepane
