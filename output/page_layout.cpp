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

// Takes the lines of one page from the front of a story.
std::vector<QString> takePage(QStringView& story) {
    std::vector<QString> page;
    while (!story.isEmpty() && page.size() < bodyLinesPerPage)
        page.push_back(withoutLineEnd(takeLine(story)));
    return page;
}

}  // namespace

std::vector<std::vector<QString>> bodyPages(QStringView story) {
    std::vector<std::vector<QString>> pages;
    while (!story.isEmpty())
        pages.push_back(takePage(story));
    return pages;
}

PageMaker::PageMaker(OutputItems news, const PageSize& pageSize, const PageTexts& pageTexts, int fontSize,
                     const TextMeasure& textMeasure)
    : items(std::move(news)), size(pageSize), texts(pageTexts), pixelSize(fontSize), measure(textMeasure) {
    for (const OutputItem& item : items)
        characters += item.story.size();
}

bool PageMaker::step() {
    if (!rest.isEmpty())
        readPage();
    else if (lines.size() < items.size())
        readItem();
    else if (placedItem < lines.size())
        placePage();
    else
        return false;
    return true;
}

// Reading and placing take about as long.
double PageMaker::progress() const {
    const auto part = [](auto done, auto all) {
        return all == 0 ? 0 : static_cast<double>(done) / static_cast<double>(all);
    };
    return (part(charactersRead, characters) + part(made.size(), pageCount)) / 2;
}

void PageMaker::readItem() {
    const OutputItem& item = items[lines.size()];
    ItemLines& itemLines = lines.emplace_back();
    for (const QStringView line : titleLines(item.title, item.wholeTitle))
        itemLines.title.push_back(line.toString());
    mostTitleLines = std::max(mostTitleLines, itemLines.title.size());
    take(widestTitle, itemLines.title);
    rest = item.story;
}

void PageMaker::readPage() {
    const qsizetype before = rest.size();
    take(widestBody, lines.back().pages.emplace_back(takePage(rest)));
    charactersRead += before - rest.size();
    ++pageCount;
}

void PageMaker::take(Widest& widest, const std::vector<QString>& candidates) const {
    for (const QString& text : candidates) {
        if (const int width = measure.width(text, pixelSize); width > widest.width)
            widest = {text, width};
    }
}

// The largest size up to that of the page at which the lines, one line's space above them, and the widest
// text fit into the box.
int PageMaker::fittingSize(const QRect& box, std::size_t lineCount, const Widest& widest) const {
    const int inset = planOf(size).inset;
    const auto fits = [&](int candidate) {
        return measure.lineHeight(candidate) * static_cast<int>(lineCount + 1) <= box.height() &&
               measure.width(widest.text, candidate) <= box.width() - 2 * inset;
    };
    int smallest = 1;
    for (int above = pixelSize + 1; above - smallest > 1;) {
        const int middle = smallest + (above - smallest) / 2;
        (fits(middle) ? smallest : above) = middle;
    }
    return smallest;
}

void PageMaker::placePage() {
    const ItemLines& item = lines[placedItem];
    if (placedPage == item.pages.size()) {
        ++placedItem;
        placedPage = 0;
        return;
    }
    const PagePlan plan = planOf(size);
    if (made.empty()) {
        titleSize = fittingSize(plan.frames.title, mostTitleLines, widestTitle);
        bodySize = fittingSize(plan.frames.body, bodyLinesPerPage, widestBody);
    }
    const std::vector<QString>& body = item.pages[placedPage++];
    PrintedPage page = commonPage(plan, size, texts, static_cast<int>(placedPage), pixelSize, measure);
    page.title = placeLines(item.title, plan.frames.title, plan.inset, titleSize, measure);
    page.body = placeLines(body, plan.frames.body, plan.inset, bodySize, measure);
    made.push_back(std::move(page));
}

std::vector<PrintedPage> layOutPages(const OutputItems& items, const PageSize& size, const PageTexts& texts,
                                     int pixelSize, const TextMeasure& measure) {
    PageMaker maker(items, size, texts, pixelSize, measure);
    while (maker.step())
        continue;
    return maker.takePages();
}

}  // namespace wirepane
