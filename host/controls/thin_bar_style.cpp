// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/thin_bar_style.h"

#include "host/contract/colour_roles.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int shortestThumb = 24;
constexpr int extent = 8;
constexpr int thumbWidth = 6;

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

// What the bar scrolls lies on this ground.
QColor groundOf(const QStyleOptionSlider& bar, const QWidget* widget) {
    const QWidget* holder = widget != nullptr ? widget->parentWidget() : nullptr;
    const auto* area =
        qobject_cast<const QAbstractScrollArea*>(holder != nullptr ? holder->parentWidget() : nullptr);
    if (area == nullptr)
        return bar.palette.color(QPalette::Base);
    return area->viewport()->palette().color(area->viewport()->backgroundRole());
}

}  // namespace

QRect thin_bar::part(const QStyleOptionSlider& bar, QStyle::SubControl subControl) {
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

void thin_bar::draw(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) {
    painter.fillRect(bar.rect, groundOf(bar, widget));
    if (bar.maximum <= bar.minimum)
        return;
    const bool pointedAt = bar.state & (QStyle::State_Sunken | QStyle::State_MouseOver);
    const QColor outline = roleColour(ColourRole::Border, bar.palette.color(QPalette::Dark));
    const QColor strong = roleColour(ColourRole::Weak, bar.palette.color(QPalette::WindowText));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(pointedAt ? strong : outline);
    const int thickness = bar.orientation == Qt::Horizontal ? bar.rect.height() : bar.rect.width();
    const qreal inset = (thickness - thumbWidth) / 2.0;
    painter.drawRoundedRect(QRectF(thumb(bar)).adjusted(inset, inset, -inset, -inset), 3, 3);
    painter.restore();
}

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
        return thin_bar::part(*bar, subControl);
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

void ThinBarStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    thin_bar::draw(*bar, *painter, widget);
}

}  // namespace wirepane
