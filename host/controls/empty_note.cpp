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

EmptyNote::EmptyNote(QWidget* parent, const QWidget& ofBoth) : EmptyNote(parent) {
    frame = &ofBoth;
}

void EmptyNote::tell(const EmptyText& text) {
    if (text != told) {
        told = text;
        setAccessibleName(told.sentence);
        button->showText(told.action);
        button->setAccessibleName(told.action);
        button->setVisible(!told.action.isEmpty());
        tellOthers();
    }
    setGeometry(parentWidget()->rect());
    if (frame != nullptr) {
        QFont whole = frame->font();
        whole.setResolveMask(QFont::AllPropertiesResolved);
        setFont(whole);
    }
    place();
    show();
    raise();
    update();
}

// Those that were needed once are kept: one of them may be telling of its click.
void EmptyNote::tellOthers() {
    while (others.size() < static_cast<std::size_t>(told.others.size())) {
        auto* other = new SButton(this);
        other->setAutoDefault(false);
        connect(other, &SButton::clicked, this,
                [this, place = static_cast<int>(others.size())] { emit otherChosen(place); });
        others.push_back(other);
    }
    for (std::size_t i = 0; i < others.size(); ++i) {
        const QString text = told.others.value(static_cast<qsizetype>(i));
        others[i]->showText(text);
        others[i]->setAccessibleName(text);
        others[i]->setVisible(!text.isEmpty());
    }
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

int EmptyNote::textHeight() const {
    return sentencePlace().height() + 2 * gap +
           (button->height() + gap) * (1 + static_cast<int>(told.others.size()));
}

bool EmptyNote::hasRoomForIcon() const {
    return height() >= iconSide + gap + textHeight() + margin;
}

// Without room for it what stands below is put in the middle.
QRect EmptyNote::iconPlace() const {
    const int text = textHeight();
    if (!hasRoomForIcon())
        return {0, std::max(0, (height() - text + gap) / 2) - iconSide - gap, iconSide, iconSide};
    const int lowest = height() - iconSide - gap - text - margin;
    const int line = frame != nullptr ? mapFrom(frame, QPoint(0, frame->height() * 3 / 8)).y() : 0;
    const bool standsOnLine = line >= margin && line <= lowest;
    const int top = standsOnLine ? line : std::max(margin, std::min({lowestTop, height() / 4, lowest}));
    return {(width() - iconSide) / 2, top, iconSide, iconSide};
}

QRect EmptyNote::sentencePlace() const {
    return fontMetrics().boundingRect(QRect(margin, 0, std::max(1, width() - 2 * margin), height()),
                                      sentenceFlags, told.sentence);
}

void EmptyNote::placeButton(SButton& which, int top) const {
    const QFontMetrics metrics(which.font());
    const int room = metrics.horizontalAdvance(which.text()) + buttonRoom;
    which.resize(std::min(room, std::max(1, width() - 2 * margin)), metrics.height() + gap);
    which.move((width() - which.width()) / 2, top);
}

// What is offered stands before the general way out.
void EmptyNote::place() {
    int top = iconPlace().bottom() + 1 + gap + sentencePlace().height() + 2 * gap;
    for (qsizetype i = 0; i < told.others.size(); ++i) {
        SButton& other = *others[static_cast<std::size_t>(i)];
        placeButton(other, top);
        top += other.height() + gap;
    }
    placeButton(*button, top);
}

void EmptyNote::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor weak = roleColour(ColourRole::Weak, palette().color(QPalette::PlaceholderText));
    const QRect icon = iconPlace();
    if (hasRoomForIcon())
        drawLineIcon(painter, told.icon, icon, weak, iconStroke);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRect(margin, icon.bottom() + 1 + gap, width() - 2 * margin, height()), sentenceFlags,
                     told.sentence);
}

}  // namespace wirepane
