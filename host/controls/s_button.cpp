// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/s_button.h"

#include "host/controls/plain_caption.h"

#include <QKeyEvent>
#include <QStyleOptionButton>

using namespace wirepane;

SButton::SButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
}

void SButton::showText(const QString& text) {
    setText(captionOfName(text));
    setAccessibleName(text);
}

QString SButton::literalText() const {
    return nameOfCaption(text());
}

int SButton::widthWithIcon() const {
    constexpr int sideMargin = 9;
    constexpr int gap = 5;
    const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
    return 2 * sideMargin + iconSize().width() + gap + text;
}

void SButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

void SButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    if (!icon().isNull()) {
        if (width() < widthWithIcon())
            option->text.clear();
        return;
    }
    const QRect room = style()->subElementRect(QStyle::SE_PushButtonContents, option, this);
    option->text =
        option->fontMetrics.elidedText(option->text, Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
}
