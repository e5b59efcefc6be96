// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QProxyStyle>

class QStyleOptionSlider;

namespace wirepane {

// Thin scroll bars: no arrows, no groove, a thumb in the colour of outlines. Also for the styles of hosts.
namespace thin_bar {

constexpr int widest = 10;  // a style whose bars are no wider has thin ones itself

WIREPANE_HOST_EXPORT QRect part(const QStyleOptionSlider& bar, QStyle::SubControl subControl);
// `widget`, the bar, tells on which ground it lies; null: on that of lists.
WIREPANE_HOST_EXPORT void draw(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget);

}  // namespace thin_bar

// The platform's style with thin bars. The bars must not outlive it.
class WIREPANE_HOST_EXPORT ThinBarStyle : public QProxyStyle {
public:
    explicit ThinBarStyle(QObject* parent);

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                         const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

}  // namespace wirepane
