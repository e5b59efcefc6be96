// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/link_group.h"

#include <array>

namespace wirepane::link_groups {

namespace {

constexpr std::array<QRgb, count> colours{0xff2667b5, 0xff2a7d46, 0xffb35c12,
                                          0xff7f4fc4, 0xffb93a38, 0xff1b7c88};
constexpr QRgb otherColour = 0xff66717f;

}  // namespace

QString label(unsigned char group) {
    if (group == 0)
        return QStringLiteral("–");
    return group <= count ? QString(QChar(u'A' + group - 1)) : QString::number(group);
}

QColor colour(unsigned char group) {
    if (group == 0)
        return {};
    return QColor::fromRgb(group <= count ? colours[group - 1U] : otherColour);
}

}  // namespace wirepane::link_groups
