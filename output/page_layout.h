// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/printed_page.h"
#include "output/output_item.h"

#include <QString>

#include <vector>

namespace wirepane {

// Lays news out on printed pages. Pure.

// The printable area of a page, in device pixels and millimetres.
struct PageSize {
    int width = 0;
    int height = 0;
    int widthMm = 0;
    int heightMm = 0;
};

// How large text is on the device, in device pixels.
class TextMeasure {
public:
    virtual ~TextMeasure() = default;

    // The height of a line of the page's font at this pixel size, with the space between lines.
    virtual int lineHeight(int pixelSize) const = 0;
    virtual int width(const QString& text, int pixelSize) const = 0;
};

// What stands on every page.
struct PageTexts {
    QString heading;  // its first 12 bytes are printed
    QString date;
};

inline constexpr int bodyLinesPerPage = 49;

// A story in the lines of its pages, without their line ends. Empty for an empty story.
std::vector<std::vector<QString>> bodyPages(QStringView story);

// Makes the pages of news, one at a time: each step takes a millisecond or less. `pixelSize` is that of the
// page's font; titles and bodies keep it where they fit their boxes, otherwise all titles, or all bodies, are
// scaled down evenly until they do.
class PageMaker {
public:
    // `measure` outlives it.
    PageMaker(OutputItems items, const PageSize& size, const PageTexts& texts, int pixelSize,
              const TextMeasure& measure);
    PageMaker(const PageMaker&) = delete;
    PageMaker& operator=(const PageMaker&) = delete;

    // False: there is nothing left to do.
    bool step();
    // How much is done, from 0 to 1.
    double progress() const;
    // The pages of the items, in their order; none for a story that is empty.
    std::vector<PrintedPage> takePages() { return std::move(made); }

private:
    struct ItemLines {
        std::vector<QString> title;
        std::vector<std::vector<QString>> pages;
    };
    // The widest of many texts, in the page's font.
    struct Widest {
        QString text;
        int width = 0;
    };

    void readItem();
    void readPage();
    void placePage();
    void take(Widest& widest, const std::vector<QString>& texts) const;
    int fittingSize(const QRect& box, std::size_t lineCount, const Widest& widest) const;

    const OutputItems items;
    const PageSize size;
    const PageTexts texts;
    const int pixelSize;
    const TextMeasure& measure;
    qsizetype characters = 0;  // of all stories
    qsizetype charactersRead = 0;

    // First the stories are read into lines: sizes depend on all of them.
    QStringView rest;  // of the story that is being read
    std::vector<ItemLines> lines;
    std::size_t mostTitleLines = 1;
    std::size_t pageCount = 0;
    Widest widestTitle;
    Widest widestBody;
    // Then pages are made of the lines.
    std::size_t placedItem = 0;
    std::size_t placedPage = 0;  // of the item
    int titleSize = 0;
    int bodySize = 0;
    std::vector<PrintedPage> made;
};

// The same in one go.
std::vector<PrintedPage> layOutPages(const OutputItems& items, const PageSize& size, const PageTexts& texts,
                                     int pixelSize, const TextMeasure& measure);

}  // namespace wirepane
