// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/thin_bar_style.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int extent = 8;
constexpr int shortestThumb = 20;

QRect thumb(const QStyleOptionSlider& bar) {
    const bool horizontal = bar.orientation == Qt::Horizontal;
    const int length = horizontal ? bar.rect.width() : bar.rect.height();
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    if (range <= 0)
        return bar.rect;
    const auto share = static_cast<int>(qint64(bar.pageStep) * length / (range + bar.pageStep));
    const int size = std::clamp(share, std::min(shortestThumb, length), length);
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - size, bar.upsideDown);
    return horizontal ? QRect(bar.rect.left() + start, bar.rect.top(), size, bar.rect.height())
                      : QRect(bar.rect.left(), bar.rect.top() + start, bar.rect.width(), size);
}

QRect part(const QStyleOptionSlider& bar, QStyle::SubControl subControl) {
    const QRect slider = thumb(bar);
    QRect rest = bar.rect;
    switch (subControl) {
        case QStyle::SC_ScrollBarSlider:
            return slider;
        case QStyle::SC_ScrollBarGroove:
            return bar.rect;
        case QStyle::SC_ScrollBarSubPage:
            bar.orientation == Qt::Horizontal ? rest.setRight(slider.left() - 1)
                                              : rest.setBottom(slider.top() - 1);
            return rest;
        case QStyle::SC_ScrollBarAddPage:
            bar.orientation == Qt::Horizontal ? rest.setLeft(slider.right() + 1)
                                              : rest.setTop(slider.bottom() + 1);
            return rest;
        default:
            return {};
    }
}

}  // namespace

ThinBarStyle::ThinBarStyle(QObject* parent) : QProxyStyle(QApplication::style()->name()) {
    setParent(parent);
}

int ThinBarStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    return metric == PM_ScrollBarExtent ? extent : QProxyStyle::pixelMetric(metric, option, widget);
}

QRect ThinBarStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                   SubControl subControl, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr)
        return part(*bar, subControl);
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

void ThinBarStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    painter->fillRect(bar->rect, bar->palette.window());
    QColor colour = bar->palette.color(QPalette::WindowText);
    colour.setAlpha(bar->state.testFlag(State_Sunken) ? 150 : 90);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    painter->drawRoundedRect(thumb(*bar).adjusted(1, 1, -1, -1), 3, 3);
    painter->restore();
}

}  // namespace wirepane
