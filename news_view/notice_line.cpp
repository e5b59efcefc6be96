// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/notice_line.h"

#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace wirepane {

QColor lateColour(const QColor& background) {
    return background.lightness() > 127 ? QColor(0xA8, 0x50, 0x00) : QColor(0xFF, 0xB0, 0x40);
}

NoticeButton::NoticeButton(QWidget* parent) : SButton(parent) {
    setCursor(Qt::PointingHandCursor);
}

void NoticeButton::setNotice(const QString& whole, const QString& shown) {
    if (whole == literalText() && shown == shownText)
        return;
    showText(whole);
    setToolTip(whole.toHtmlEscaped());
    shownText = shown;
    update();
}

void NoticeButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QFont underlined = font();
    underlined.setUnderline(true);
    painter.setFont(underlined);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(rect(), Qt::AlignVCenter | Qt::TextSingleLine, shownText);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

NoticeLine::NoticeLine(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void NoticeLine::setColours(const QColor& plain, const QColor& late) {
    plainColour = plain;
    colourOfLate = late;
}

void NoticeLine::showNotices(const ListNotices& notices, const QRect& area, QWidget* keyboardNext) {
    setGeometry(area);
    placed = placeNotices(notices, area.width(), fontMetrics());
    for (const int command : ids::noticeCommands) {
        auto* button = qobject_cast<NoticeButton*>(dlgItem(parentWidget(), command));
        if (button == nullptr)
            continue;
        const auto shown = std::find_if(placed.begin(), placed.end(), [command](const PlacedNotice& notice) {
            return commandOf(notice.kind) == command;
        });
        if (shown == placed.end() && button->hasFocus() && keyboardNext != nullptr)
            keyboardNext->setFocus();
        button->setVisible(shown != placed.end());
        if (shown == placed.end())
            continue;
        QPalette colours = button->palette();
        colours.setColor(QPalette::ButtonText, plainColour);
        button->setPalette(colours);
        button->setFont(font());
        button->setGeometry(area.left() + shown->left, area.top(), shown->width, area.height());
        button->setNotice(notices.text(shown->kind), shown->text);
    }
    // What a screen reader reads; the tool tip tells what had no room.
    setText(notices.text());
    setToolTip(notices.text().toHtmlEscaped());
    setVisible(!placed.empty());
    update();
}

void NoticeLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(font());
    for (const PlacedNotice& notice : placed) {
        if (commandOf(notice.kind) != 0)
            continue;
        painter.setPen(notice.kind == NoticeKind::Offline || notice.kind == NoticeKind::Quiet ? colourOfLate
                                                                                              : plainColour);
        painter.drawText(QRect(notice.left, 0, notice.width, height()), Qt::AlignVCenter | Qt::TextSingleLine,
                         notice.text);
    }
}

}  // namespace wirepane
