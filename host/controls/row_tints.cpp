// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/row_tints.h"

#include "host/contract/headline_looks.h"

#include <QApplication>
#include <QPalette>

#include <array>

namespace wirepane {

QColor sampleOfTint(int tint) {
    constexpr std::array<int, HeadlineLook::tints> hues{0, 30, 130, 185, 220, 280};
    constexpr int saturation = 190;
    constexpr int middle = 128;
    if (tint < 1 || tint > HeadlineLook::tints)
        return {};
    const bool isDark = QApplication::palette().color(QPalette::Base).lightness() < middle;
    return QColor::fromHsl(hues[static_cast<std::size_t>(tint - 1)], saturation, isDark ? 130 : 120);
}

QColor rowTint(int tint) {
    constexpr int seenThrough = 44;  // of 255
    QColor colour = sampleOfTint(tint);
    if (colour.isValid())
        colour.setAlpha(seenThrough);
    return colour;
}

}  // namespace wirepane
