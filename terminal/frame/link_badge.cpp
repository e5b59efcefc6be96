// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/link_badge.h"

#include "terminal/frame/link_group.h"
#include "terminal/translations/terminal_text.h"

#include <QActionGroup>
#include <QMenu>
#include <QPainter>

namespace wirepane {

namespace {

constexpr int margin = 3;

QIcon iconOf(unsigned char group, int side) {
    QPixmap picture(side, side);
    picture.fill(link_groups::colour(group));
    return {picture};
}

}  // namespace

void addLinkGroups(QMenu& menu, unsigned char present, bool withNone, bool shortcuts,
                   const std::function<void(unsigned char)>& chosen) {
    auto* group = new QActionGroup(&menu);
    for (int number = withNone ? 0 : 1; number <= link_groups::count; ++number) {
        const auto linkGroup = static_cast<unsigned char>(number);
        QAction* action =
            menu.addAction(number == 0 ? terminalText(TextId::LinkNone)
                                       : terminalText(TextId::LinkGroup).arg(link_groups::label(linkGroup)));
        if (number > 0)
            action->setIcon(iconOf(linkGroup, menu.fontMetrics().ascent()));
        if (shortcuts)
            action->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + number)));
        action->setCheckable(true);
        action->setChecked(linkGroup == present);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &menu, [chosen, linkGroup] { chosen(linkGroup); });
    }
}

LinkBadge::LinkBadge(QWidget* parent) : QToolButton(parent), groups(new QMenu(this)) {
    setPopupMode(QToolButton::InstantPopup);
    setMenu(groups);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    connect(groups, &QMenu::aboutToShow, this, &LinkBadge::fillMenu);
}

void LinkBadge::setGroup(unsigned char group) {
    shownGroup = group;
    setAccessibleName(group == 0
                          ? terminalText(TextId::LinkNone)
                          : terminalText(TextId::LinkGroup).remove(u'&').arg(link_groups::label(group)));
    setToolTip(terminalText(TextId::LinkHint).toHtmlEscaped());
    updateGeometry();
    update();
}

void LinkBadge::fillMenu() {
    groups->clear();
    addLinkGroups(*groups, shownGroup, offersNone, false,
                  [this](unsigned char group) { emit groupChosen(group); });
}

QSize LinkBadge::sizeHint() const {
    const QFontMetrics metrics(font());
    const int side = metrics.height() + margin;
    return {std::max(side, metrics.horizontalAdvance(link_groups::label(shownGroup)) + 2 * margin), side};
}

void LinkBadge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = link_groups::colour(shownGroup);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(colour.isValid() ? colour : palette().color(QPalette::Mid)));
    painter.setBrush(colour.isValid() ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(frame, 3, 3);
    if (hasFocus() || underMouse()) {
        painter.setPen(QPen(palette().color(QPalette::Text)));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(frame, 3, 3);
    }
    QFont letter = font();
    letter.setBold(true);
    painter.setFont(letter);
    painter.setPen(colour.isValid() ? QColor(Qt::white) : palette().color(QPalette::PlaceholderText));
    painter.drawText(rect(), Qt::AlignCenter, link_groups::label(shownGroup));
}

}  // namespace wirepane
