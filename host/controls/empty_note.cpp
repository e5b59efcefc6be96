// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/empty_note.h"

#include "host/contract/colour_roles.h"
#include "host/controls/s_button.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int iconSide = 40;
constexpr qreal iconStroke = 0.75;  // of the grid's 16
constexpr int gap = 10;
constexpr int margin = 16;
constexpr int lowestTop = 190;
constexpr int buttonRoom = 32;  // beside its text
constexpr int sentenceFlags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;

}  // namespace

EmptyNote::EmptyNote(QWidget* parent) : QWidget(parent), button(new SButton(this)) {
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    button->setAutoDefault(false);
    connect(button, &SButton::clicked, this, &EmptyNote::acted);
    hide();
    parent->installEventFilter(this);
}

void EmptyNote::tell(const EmptyText& text) {
    if (text != told) {
        told = text;
        setAccessibleName(told.sentence);
        button->showText(told.action);
        button->setAccessibleName(told.action);
        button->setVisible(!told.action.isEmpty());
    }
    setGeometry(parentWidget()->rect());
    place();
    show();
    raise();
    update();
}

bool EmptyNote::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == parentWidget())
        setGeometry(parentWidget()->rect());
    return false;
}

void EmptyNote::resizeEvent(QResizeEvent*) {
    place();
}

void EmptyNote::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        place();
}

QRect EmptyNote::iconPlace() const {
    const int needed = iconSide + gap + sentencePlace().height() + 2 * gap + button->height();
    const int top = std::max(margin, std::min({lowestTop, height() / 4, height() - needed - margin}));
    return {(width() - iconSide) / 2, top, iconSide, iconSide};
}

QRect EmptyNote::sentencePlace() const {
    return fontMetrics().boundingRect(QRect(margin, 0, std::max(1, width() - 2 * margin), height()),
                                      sentenceFlags, told.sentence);
}

void EmptyNote::place() {
    const QFontMetrics metrics(button->font());
    const int room = metrics.horizontalAdvance(told.action) + buttonRoom;
    button->resize(std::min(room, std::max(1, width() - 2 * margin)), metrics.height() + gap);
    const int top = iconPlace().bottom() + 1 + gap + sentencePlace().height() + 2 * gap;
    button->move((width() - button->width()) / 2, top);
}

void EmptyNote::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor weak = roleColour(ColourRole::Weak, palette().color(QPalette::PlaceholderText));
    const QRect icon = iconPlace();
    drawLineIcon(painter, told.icon, icon, weak, iconStroke);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRect(margin, icon.bottom() + 1 + gap, width() - 2 * margin, height()), sentenceFlags,
                     told.sentence);
}

}  // namespace wirepane
