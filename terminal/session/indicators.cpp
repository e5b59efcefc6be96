// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/indicators.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace wirepane {

namespace {

constexpr qreal corner = 2;

struct Colours {
    QColor edge;
    QColor ground;
    QColor mark;
};

Colours coloursOf(const QStyleOption& option) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool ticked = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const bool pointedAt = option.state & (QStyle::State_HasFocus | QStyle::State_MouseOver);
    const auto group = enabled ? QPalette::Active : QPalette::Disabled;
    const QColor accent = option.palette.color(group, QPalette::Highlight);
    QColor edge = option.palette.color(group, QPalette::Text);
    edge.setAlphaF(enabled ? 0.55F : 0.3F);
    return {ticked || (enabled && pointedAt) ? accent : edge,
            ticked ? accent : option.palette.color(group, QPalette::Base),
            option.palette.color(group, QPalette::HighlightedText)};
}

// The largest square in the middle, on the middles of pixels.
QRectF squareIn(const QRect& place) {
    const int side = std::min(place.width(), place.height());
    QRect square(0, 0, side, side);
    square.moveCenter(place.center());
    return QRectF(square).adjusted(0.5, 0.5, -0.5, -0.5);
}

void beginIndicator(QPainter& painter, const Colours& colours) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colours.edge);
    painter.setBrush(colours.ground);
}

}  // namespace

void drawCheckBox(const QStyleOption& option, QPainter& painter) {
    const Colours colours = coloursOf(option);
    const QRectF box = squareIn(option.rect);
    const auto at = [&box](qreal x, qreal y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    beginIndicator(painter, colours);
    // On a selected row the ground is the accent itself.
    if (option.state.testFlag(QStyle::State_Selected))
        painter.setPen(colours.mark);
    painter.drawRoundedRect(box, corner, corner);
    painter.setPen(QPen(colours.mark, box.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (option.state.testFlag(QStyle::State_NoChange))
        painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    else if (option.state.testFlag(QStyle::State_On))
        painter.drawPolyline(QPolygonF({at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.28)}));
    painter.restore();
}

void drawRadioButton(const QStyleOption& option, QPainter& painter) {
    const Colours colours = coloursOf(option);
    const QRectF circle = squareIn(option.rect);
    beginIndicator(painter, colours);
    painter.drawEllipse(circle);
    if (option.state.testFlag(QStyle::State_On)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colours.mark);
        painter.drawEllipse(circle.center(), circle.width() / 5, circle.height() / 5);
    }
    painter.restore();
}

}  // namespace wirepane
