// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/hit_grounds.h"

#include "host/contract/colour_roles.h"

#include <QApplication>
#include <QPalette>

namespace wirepane {

namespace {

constexpr int violet = 280;
constexpr int pink = 335;
constexpr int orange = 20;

// Far from the blue of a selected row.
QColor inHue(const QColor& colour, int hue) {
    return QColor::fromHsl(hue, colour.hslSaturation(), colour.lightness());
}

}  // namespace

HitGrounds hitGrounds() {
    constexpr QRgb lightMark = 0xffffe899;
    constexpr QRgb darkMark = 0xff6b5708;
    constexpr QRgb lightMark2 = 0xffcbeedb;
    constexpr QRgb darkMark2 = 0xff1d5540;
    constexpr int middle = 128;
    const bool isDark = QApplication::palette().color(QPalette::Base).lightness() < middle;
    const QColor first = roleColour(ColourRole::Mark, QColor(isDark ? darkMark : lightMark));
    const QColor second = roleColour(ColourRole::Mark2, QColor(isDark ? darkMark2 : lightMark2));
    return {first, second, inHue(second, violet), inHue(second, pink), inHue(second, orange)};
}

}  // namespace wirepane
