// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QProxyStyle>

namespace wirepane {

// Thin scroll bars: no arrows, a plain groove, a thumb of the text's colour. The bars must not outlive the
// style.
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
