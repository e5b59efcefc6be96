// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/view_title_bar.h"

#include "host/controls/line_icon.h"
#include "terminal/frame/link_badge.h"
#include "terminal/translations/terminal_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

namespace wirepane {

namespace {

QToolButton* flatButton(LineIcon icon, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setIcon(lineIcon(icon, QPalette::PlaceholderText));
    return button;
}

}  // namespace

ViewTitleBar::ViewTitleBar(QWidget* parent)
    : QWidget(parent),
      badge(new LinkBadge(this)),
      label(new QLabel(this)),
      floatButton(flatButton(LineIcon::Window, this)),
      closeButton(flatButton(LineIcon::Close, this)) {
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(1);
    badge->setFocusPolicy(Qt::NoFocus);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 3, 8, 3);
    row->setSpacing(8);
    row->addWidget(badge);
    row->addWidget(label, 1);
    row->addWidget(floatButton);
    row->addWidget(closeButton);
    connect(badge, &LinkBadge::groupChosen, this, &ViewTitleBar::groupChosen);
    connect(floatButton, &QToolButton::clicked, this, &ViewTitleBar::floatAsked);
    connect(closeButton, &QToolButton::clicked, this, &ViewTitleBar::closeAsked);
    retranslate();
}

void ViewTitleBar::setTitle(const QString& text) {
    title = text;
    elide();
}

void ViewTitleBar::setGroup(unsigned char group) {
    badge->setGroup(group);
}

void ViewTitleBar::setActive(bool isActive) {
    active = isActive;
    QFont font = label->font();
    font.setWeight(active ? QFont::DemiBold : QFont::Normal);
    label->setFont(font);
    label->setForegroundRole(active ? QPalette::WindowText : QPalette::PlaceholderText);
    elide();
    update();
}

void ViewTitleBar::retranslate() {
    floatButton->setToolTip(terminalText(TextId::FloatButton).toHtmlEscaped());
    closeButton->setToolTip(terminalText(TextId::CloseButton).toHtmlEscaped());
    badge->setGroup(badge->group());
}

void ViewTitleBar::elide() {
    label->setText(label->fontMetrics().elidedText(title, Qt::ElideRight, label->width()));
}

void ViewTitleBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layout()->activate();
    elide();
}

void ViewTitleBar::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), palette().color(QPalette::Window));
}

void ViewTitleBar::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    emit renameAsked();
}

}  // namespace wirepane
