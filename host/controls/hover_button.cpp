// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/hover_button.h"

#include <QPainter>

CHoverButton::CHoverButton(QWidget* parent) : QPushButton(parent) {
    setAttribute(Qt::WA_Hover);
}

void CHoverButton::loadBitmaps(const QPixmap& asNormal, const QPixmap& asSelected, const QPixmap& asFocused,
                               const QPixmap& asDisabled) {
    normal = asNormal;
    selected = asSelected;
    focused = asFocused;
    disabled = asDisabled;
    update();
}

void CHoverButton::sizeToContent() {
    setFixedSize(sizeHint());
}

QSize CHoverButton::sizeHint() const {
    return normal.isNull() ? QPushButton::sizeHint() : normal.deviceIndependentSize().toSize();
}

const QPixmap& CHoverButton::picture() const {
    if (!isEnabled())
        return disabled;
    if (isDown())
        return selected;
    return hasFocus() || underMouse() ? focused : normal;
}

void CHoverButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).drawPixmap(0, 0, picture());
}
