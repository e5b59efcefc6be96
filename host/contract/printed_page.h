// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

#include <vector>

namespace wirepane {

// A printed page as a value: where every frame and every text stands, in device pixels from the top left
// corner of the printable area. Drawing adds nothing to it.

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

}  // namespace wirepane
