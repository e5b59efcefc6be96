// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/plates.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace wirepane {

namespace {

constexpr qreal corner = 4;
constexpr qreal ringWidth = 2;
constexpr int tabLine = 2;
constexpr int tabMargin = 8;

// A rounded rectangle with an outline of `width` within the place.
void drawRounded(QPainter& painter, const QRectF& place, const QBrush& fill, const QColor& outline,
                 qreal width) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(outline.isValid() ? QPen(outline, width) : QPen(Qt::NoPen));
    painter.setBrush(fill);
    const qreal inset = outline.isValid() ? width / 2 : 0;
    painter.drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), corner, corner);
    painter.restore();
}

// Where a control has the ground of its window, as in high contrast, its outline tells it from that.
QColor neededOutline(const QPalette& palette) {
    const bool alike = palette.color(QPalette::Button) == palette.color(QPalette::Window);
    return alike ? palette.color(QPalette::Dark) : QColor();
}

QFont tabFont(QFont font, bool inFront) {
    font.setWeight(inFront ? QFont::DemiBold : QFont::Normal);
    return font;
}

bool has(const QStyleOption& option, QStyle::State states) {
    return (option.state & states) != 0;
}

}  // namespace

void drawButtonPlate(const QStyleOptionButton& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    const bool enabled = has(option, QStyle::State_Enabled);
    const bool pressed = has(option, QStyle::State_Sunken | QStyle::State_On);
    const bool pointedAt = enabled && has(option, QStyle::State_MouseOver);
    const bool isDefault = enabled && option.features.testFlag(QStyleOptionButton::DefaultButton);
    QRectF place(option.rect);
    if (enabled && has(option, QStyle::State_HasFocus)) {
        drawRounded(painter, place, Qt::NoBrush, palette.color(QPalette::Link), ringWidth);
        place.adjust(ringWidth + 1, ringWidth + 1, -ringWidth - 1, -ringWidth - 1);
    }
    QColor fill = palette.color(pressed || pointedAt ? QPalette::Midlight : QPalette::Button);
    if (isDefault)
        fill = palette.color(QPalette::Link);
    drawRounded(painter, place, fill, pressed ? palette.color(QPalette::Dark) : neededOutline(palette), 1);
}

void drawToolPlate(const QStyleOption& option, QPainter& painter) {
    const bool pointedAt = has(option, QStyle::State_Enabled) && has(option, QStyle::State_MouseOver);
    if (pointedAt || has(option, QStyle::State_Sunken | QStyle::State_On))
        drawRounded(painter, QRectF(option.rect), option.palette.color(QPalette::Midlight), {}, 0);
}

void drawInput(const QStyleOption& option, QPainter& painter, bool filled) {
    const QPalette& palette = option.palette;
    const bool enabled = has(option, QStyle::State_Enabled);
    const bool focused = enabled && has(option, QStyle::State_HasFocus);
    QColor outline = palette.color(QPalette::Dark);
    if (!enabled)
        outline = palette.color(QPalette::Mid);
    else if (focused)
        outline = palette.color(QPalette::Link);
    else if (has(option, QStyle::State_MouseOver))
        outline = palette.color(QPalette::Text);
    const QBrush ground =
        filled ? palette.brush(enabled ? QPalette::Base : QPalette::Window) : QBrush(Qt::NoBrush);
    drawRounded(painter, QRectF(option.rect), ground, outline, focused ? ringWidth : 1);
}

void drawListFrame(const QStyleOption& option, QPainter& painter, bool inView) {
    const bool focused = has(option, QStyle::State_HasFocus);
    painter.setPen(option.palette.color(inView ? QPalette::Base : focused ? QPalette::Link : QPalette::Dark));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

void drawPopupFrame(const QStyleOption& option, QPainter& painter) {
    painter.setPen(option.palette.color(QPalette::Dark));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

int tabWidth(const QStyleOptionTab& option, const QFont& font) {
    const QFontMetrics metrics(tabFont(font, true));
    return metrics.size(Qt::TextShowMnemonic, option.text).width() + 2 * tabMargin;
}

void drawTab(const QStyleOptionTab& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    const bool selected = has(option, QStyle::State_Selected);
    const bool enabled = has(option, QStyle::State_Enabled);
    const QRect& place = option.rect;
    painter.fillRect(QRect(place.left(), place.bottom(), place.width(), 1), palette.color(QPalette::Mid));
    painter.save();
    painter.setFont(tabFont(painter.font(), selected));
    const QRect room = place.adjusted(tabMargin, 0, -tabMargin, 0);
    const int textWidth =
        std::min(room.width(), painter.fontMetrics().size(Qt::TextShowMnemonic, option.text).width());
    if (selected)
        painter.fillRect(room.left(), place.bottom() + 1 - tabLine, textWidth, tabLine,
                         palette.color(QPalette::Link));
    if (selected && has(option, QStyle::State_HasFocus))
        drawRounded(painter, QRectF(place).adjusted(2, 2, -2, -3), Qt::NoBrush, palette.color(QPalette::Link),
                    1);
    const bool strong = selected || has(option, QStyle::State_MouseOver);
    painter.setPen(palette.color(enabled ? QPalette::Active : QPalette::Disabled,
                                 strong ? QPalette::Text : QPalette::PlaceholderText));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
                     option.text);
    painter.restore();
}

void drawHeading(const QStyleOption& option, QPainter& painter) {
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                     option.palette.color(QPalette::Mid));
}

void drawMenuMark(const QStyleOption& option, QPainter& painter) {
    drawRounded(painter, QRectF(option.rect), option.palette.color(QPalette::Midlight),
                neededOutline(option.palette), 1);
}

void drawSplitter(const QStyleOption& option, QPainter& painter) {
    const bool upright = has(option, QStyle::State_Horizontal);
    const QRect& place = option.rect;
    const QRect line = upright ? QRect(place.center().x(), place.top(), 1, place.height())
                               : QRect(place.left(), place.center().y(), place.width(), 1);
    const bool dragged = has(option, QStyle::State_Sunken);
    painter.fillRect(line, option.palette.color(dragged ? QPalette::Link : QPalette::Mid));
}

}  // namespace wirepane
