// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/figures.h"

#include <algorithm>

namespace wirepane {

Figures::Figures(const QFontMetricsF& metrics) {
    constexpr qreal rounding = 0.01;
    qreal narrowest = metrics.horizontalAdvance(QLatin1Char('0'));
    for (char digit = '0'; digit <= '9'; ++digit) {
        const qreal width = metrics.horizontalAdvance(QLatin1Char(digit));
        widest = std::max(widest, width);
        narrowest = std::min(narrowest, width);
    }
    uneven = widest - narrowest > rounding;
}

qreal Figures::width(const QFontMetricsF& metrics, const QString& text) const {
    qreal width = 0;
    for (const QChar character : text)
        width += character.isDigit() ? widest : metrics.horizontalAdvance(character);
    return width;
}

}  // namespace wirepane
