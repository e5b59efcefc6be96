// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/row_look.h"

#include "host/contract/view_options.h"

#include <QFontInfo>
#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace wirepane {

RowLook rowLook(const ViewOptions& options) {
    return {.finished = options[ViewOption::FinishedRows],
            .gutter = options.value(ViewOption::RowGutter),
            .air = options.value(ViewOption::RowAir),
            .heading = options.value(ViewOption::HeadingHeight)};
}

int textHeight(const QFont& font) {
    constexpr double ofSize = 1.35;
    const int high = static_cast<int>(std::lround(ofSize * QFontInfo(font).pixelSize()));
    return std::max(QFontMetrics(font).height(), high);
}

int grown(int pixels, const QFont& font) {
    constexpr int usualTextHeight = 18;
    return std::max(pixels, pixels * textHeight(font) / usualTextHeight);
}

QFont sizedFont(const QFont& font, int share) {
    constexpr double whole = 1000;
    QFont sized = font;
    if (font.pointSizeF() > 0)
        sized.setPointSizeF(font.pointSizeF() * share / whole);
    else
        sized.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * share / whole))));
    return sized;
}

}  // namespace wirepane
