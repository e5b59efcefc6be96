// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QFontMetricsF>
#include <QString>

namespace wirepane {

// Figures of one width: texts of times and prices stand under one another digit by digit, also in a font
// whose digits are of several widths.
class WIREPANE_HOST_EXPORT Figures {
public:
    Figures() = default;
    explicit Figures(const QFontMetricsF& metrics);

    // False where the font has digits of one width itself: its texts can be drawn as they are.
    bool areUneven() const { return uneven; }
    // The room that a digit has: that of the widest.
    qreal digit() const { return widest; }
    // The width of a text of this font, each digit as wide as the widest.
    qreal width(const QFontMetricsF& metrics, const QString& text) const;

private:
    qreal widest = 0;
    bool uneven = false;
};

}  // namespace wirepane
