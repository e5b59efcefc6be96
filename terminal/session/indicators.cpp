// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/indicators.h"

#include "host/contract/colour_roles.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace wirepane {

namespace {

constexpr qreal corner = 3;

struct Colours {
    QColor edge;
    QColor ground;
    QColor mark;
};

Colours coloursOf(const QStyleOption& option) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool ticked = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const QColor accent = option.palette.color(QPalette::Link);
    const QColor ground = option.palette.color(QPalette::Base);
    if (!enabled)
        return {option.palette.color(QPalette::Disabled, QPalette::Text), ground,
                option.palette.color(QPalette::Disabled, QPalette::Text)};
    QColor edge = option.palette.color(QPalette::Dark);
    if (ticked || option.state.testFlag(QStyle::State_HasFocus))
        edge = accent;
    else if (option.state.testFlag(QStyle::State_MouseOver))
        edge = option.palette.color(QPalette::Text);
    return {edge, ticked ? accent : ground, roleColour(ColourRole::OnAccent, ground)};
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
