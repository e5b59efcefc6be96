// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/view_title_bar.h"

#include "terminal/frame/link_badge.h"
#include "terminal/translations/terminal_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

namespace wirepane {

namespace {

constexpr int activeStripe = 2;  // pixels at the top

// A flat button with a sign that is drawn in the palette's colours.
class SignButton : public QToolButton {
public:
    enum class Sign { Float, Close };

    SignButton(Sign shownSign, QWidget* parent) : QToolButton(parent), sign(shownSign) {
        setAutoRaise(true);
        setFocusPolicy(Qt::NoFocus);
    }

    QSize sizeHint() const override {
        const int side = fontMetrics().height() + 3;
        return {side, side};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (underMouse())
            painter.fillRect(rect(), palette().color(QPalette::Mid));
        painter.setPen(QPen(palette().color(QPalette::ButtonText), 1.2));
        const qreal side = std::min(width(), height()) * 0.42;
        const QRectF square(QRectF(rect()).center() - QPointF(side / 2, side / 2), QSizeF(side, side));
        if (sign == Sign::Close) {
            painter.drawLine(square.topLeft(), square.bottomRight());
            painter.drawLine(square.topRight(), square.bottomLeft());
        } else {
            painter.drawRect(square.adjusted(side * 0.25, 0, 0, -side * 0.25));
            painter.drawLine(square.topLeft() + QPointF(0, side * 0.4), square.bottomLeft());
            painter.drawLine(square.bottomLeft(), QPointF(square.right() - side * 0.35, square.bottom()));
        }
    }

private:
    Sign sign;
};

}  // namespace

ViewTitleBar::ViewTitleBar(QWidget* parent)
    : QWidget(parent),
      badge(new LinkBadge(this)),
      label(new QLabel(this)),
      floatButton(new SignButton(SignButton::Sign::Float, this)),
      closeButton(new SignButton(SignButton::Sign::Close, this)) {
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(1);
    badge->setFocusPolicy(Qt::NoFocus);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 3, 3, 3);
    row->setSpacing(6);
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
    font.setBold(active);
    label->setFont(font);
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
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(active ? QPalette::Button : QPalette::Window));
    if (active)
        painter.fillRect(0, 0, width(), activeStripe, palette().color(QPalette::Highlight));
}

void ViewTitleBar::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    emit renameAsked();
}

}  // namespace wirepane
