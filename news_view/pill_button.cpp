// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/pill_button.h"

#include "host/contract/colour_roles.h"
#include "host/controls/line_icon.h"

#include <QPainter>

namespace wirepane {

namespace {

constexpr int atEnds = 8;   // left and right of what the pill says
constexpr int between = 6;  // its parts
constexpr int iconSide = 10;

}  // namespace

PillButton::PillButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void PillButton::showText(const QString& text, const QString& key) {
    setText(text);
    keyText = key;
    updateGeometry();
    update();
}

QSize PillButton::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {2 * atEnds + iconSide + 2 * between + metrics.horizontalAdvance(text()) +
                metrics.horizontalAdvance(keyText),
            metrics.height()};
}

void PillButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = roleColour(ColourRole::Accent, palette().color(QPalette::Highlight));
    const QColor ink = roleColour(ColourRole::OnAccent, palette().color(QPalette::HighlightedText));
    const QRectF whole = QRectF(rect());
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(whole, whole.height() / 2, whole.height() / 2);
    if (hasFocus()) {
        painter.setPen(ink);
        painter.setBrush(Qt::NoBrush);
        const QRectF inner = whole.adjusted(1.5, 1.5, -1.5, -1.5);
        painter.drawRoundedRect(inner, inner.height() / 2, inner.height() / 2);
    }
    const QRectF icon(atEnds, (whole.height() - iconSide) / 2, iconSide, iconSide);
    drawLineIcon(painter, LineIcon::Prev, icon, ink);
    painter.setPen(ink);
    QRect room = rect().adjusted(atEnds + iconSide + between, 0, -atEnds, 0);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text());
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, keyText);
}

}  // namespace wirepane
