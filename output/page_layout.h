// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "output/output_item.h"

#include <QPoint>
#include <QRect>
#include <QString>

#include <vector>

namespace wirepane {

// The printed pages as a value: where every frame and every text stands. Drawing adds nothing to it. Pure.

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

// A text by its top left corner.
struct PlacedText {
    QPoint topLeft;
    QString text;
    int pixelSize = 0;

    bool operator==(const PlacedText&) const = default;
};

struct PageFrames {
    QRect outer;
    QRect inner;
    QRect title;
    QRect body;
    QRect footer;
};

struct PrintedPage {
    int number = 0;  // from 1 on within each story
    PageFrames frames;
    PlacedText heading;
    PlacedText date;
    PlacedText pageNumber;
    std::vector<PlacedText> title;
    std::vector<PlacedText> body;
};

inline constexpr int bodyLinesPerPage = 49;

// A story in the lines of its pages, without their line ends. Empty for an empty story.
std::vector<std::vector<QString>> bodyPages(QStringView story);

// The pages of the items, in their order. `pixelSize` is that of the page's font; titles and bodies keep it
// where they fit their boxes, otherwise all titles, or all bodies, are scaled down evenly until they do.
std::vector<PrintedPage> layOutPages(const OutputItems& items, const PageSize& size, const PageTexts& texts,
                                     int pixelSize, const TextMeasure& measure);

}  // namespace wirepane
