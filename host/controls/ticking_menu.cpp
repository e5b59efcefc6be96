// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/ticking_menu.h"

#include "host/controls/plain_caption.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionMenuItem>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int margin = 10;
constexpr int gap = 8;
constexpr qreal corner = 4;

QString nameOf(const QAction& entry) {
    return nameOfCaption(entry.text().section(u'\t', 0, 0));
}

QString countOf(const QAction& entry) {
    return entry.text().section(u'\t', 1);
}

}  // namespace

void TickingMenu::stayOpen(const QString& offer) {
    onlyText = offer;
    const QFontMetrics metrics(font());
    int names = 0;
    for (const QAction* entry : actions())
        names = std::max(names, metrics.horizontalAdvance(nameOf(*entry)));
    const int tickSide = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this);
    const int offered = metrics.horizontalAdvance(onlyText) + 2 * gap;
    setMinimumWidth(2 * margin + tickSide + gap + names + 2 * gap + offered + gap + countWidth());
}

int TickingMenu::countWidth() const {
    int widest = fontMetrics().horizontalAdvance(QStringLiteral("000"));
    for (const QAction* entry : actions())
        widest = std::max(widest, fontMetrics().horizontalAdvance(countOf(*entry)));
    return widest;
}

QRect TickingMenu::onlyPlace(QAction* entry) const {
    if (onlyText.isEmpty() || !entry->isCheckable() || !entry->isEnabled())
        return {};
    const QRect row = actionGeometry(entry);
    const int width = fontMetrics().horizontalAdvance(onlyText) + 2 * gap;
    return {row.right() + 1 - margin - countWidth() - gap - width, row.top() + 2, width, row.height() - 4};
}

bool TickingMenu::tick(bool alone) {
    QAction* entry = activeAction();
    if (onlyText.isEmpty() || entry == nullptr || !entry->isEnabled() || entry->isSeparator())
        return false;
    if (alone && entry->isCheckable())
        emit onlyAsked(entry);
    else
        entry->trigger();
    return true;
}

void TickingMenu::mouseMoveEvent(QMouseEvent* event) {
    QMenu::mouseMoveEvent(event);
    if (!onlyText.isEmpty())
        update();
}

void TickingMenu::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    const bool alone = event->modifiers().testFlag(Qt::ShiftModifier) ||
                       (activeAction() != nullptr && onlyPlace(activeAction()).contains(point));
    if (!rect().contains(point) || !tick(alone))
        QMenu::mouseReleaseEvent(event);
}

void TickingMenu::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space || !tick(event->modifiers().testFlag(Qt::ShiftModifier)))
        QMenu::keyPressEvent(event);
}

void TickingMenu::paintEvent(QPaintEvent* event) {
    if (onlyText.isEmpty()) {
        QMenu::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOptionMenuItem panel;
    panel.initFrom(this);
    style()->drawPrimitive(QStyle::PE_PanelMenu, &panel, &painter, this);
    for (QAction* entry : actions())
        drawEntry(painter, entry);
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, this);
    style()->drawPrimitive(QStyle::PE_FrameMenu, &frame, &painter, this);
}

void TickingMenu::drawEntry(QPainter& painter, QAction* entry) const {
    const QRect row = actionGeometry(entry);
    const bool active = entry == activeAction() && entry->isEnabled();
    if (entry->isSeparator()) {
        painter.fillRect(row.left(), row.center().y(), row.width(), 1, palette().color(QPalette::Mid));
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (active) {
        // Where buttons have the ground of their window, as in high contrast, an outline tells the entry.
        const QColor ground = palette().color(QPalette::Button);
        if (ground == palette().color(QPalette::Window))
            painter.setPen(palette().color(QPalette::Dark));
        painter.setBrush(ground);
        painter.drawRoundedRect(QRectF(row).adjusted(4.5, 1.5, -4.5, -1.5), corner, corner);
    }
    const int tickSide = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this);
    if (entry->isCheckable()) {
        QStyleOptionButton box;
        box.initFrom(this);
        box.state = (entry->isEnabled() ? QStyle::State_Enabled : QStyle::State_None) |
                    (entry->isChecked() ? QStyle::State_On : QStyle::State_Off);
        box.rect = QRect(row.left() + margin, row.center().y() - tickSide / 2, tickSide, tickSide);
        style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &painter, this);
    }
    const QRect text = row.adjusted(margin + tickSide + gap, 0, -margin, 0);
    painter.setPen(palette().color(entry->isEnabled() ? QPalette::WindowText : QPalette::PlaceholderText));
    painter.drawText(text, Qt::AlignVCenter | Qt::TextSingleLine, nameOf(*entry));
    if (active && entry->isCheckable()) {
        const QRect only = onlyPlace(entry);
        const bool pointedAt = only.contains(mapFromGlobal(QCursor::pos()));
        painter.setPen(palette().color(QPalette::Dark));
        painter.setBrush(palette().color(pointedAt ? QPalette::Midlight : QPalette::Window));
        painter.drawRoundedRect(QRectF(only).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(only, Qt::AlignCenter | Qt::TextSingleLine, onlyText);
    }
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, countOf(*entry));
    painter.restore();
}

}  // namespace wirepane
