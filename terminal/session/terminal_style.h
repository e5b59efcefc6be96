// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

class QStyleOptionButton;

namespace wirepane {

// How the terminal draws its controls: flat, in the palette's colours, with one thin line where something
// ends. What it does not draw itself, the platform-neutral style draws.
class TerminalStyle : public QProxyStyle {
    Q_OBJECT

public:
    TerminalStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                         const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    void drawButtonLabel(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
    void drawIconAndText(const QStyleOptionButton& button, QPainter& painter) const;
    void drawMenuEntry(ControlElement element, const QStyleOption& option, QPainter& painter,
                       const QWidget* widget) const;
    void drawSpinBox(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;
};

}  // namespace wirepane
