// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alert_toast.h"

#include "host/controls/line_icon.h"
#include "terminal/translations/terminal_text.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace wirepane {

namespace {

constexpr int widthInCharacters = 52;
constexpr int fromEdge = 12;  // of the window, pixels
constexpr int overStatusBar = 40;

}  // namespace

AlertToast::AlertToast(QWidget& window)
    : QFrame(&window), rule(new QLabel), title(new QLabel), more(new QLabel), close(new QPushButton) {
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    QFont strong = rule->font();
    strong.setWeight(QFont::DemiBold);
    rule->setFont(strong);
    for (QLabel* label : {rule, title, more}) {
        label->setTextFormat(Qt::PlainText);
        label->setForegroundRole(QPalette::ToolTipText);
    }
    title->setWordWrap(true);
    close->setIcon(lineIcon(LineIcon::Close));
    close->setFlat(true);
    close->setFocusPolicy(Qt::NoFocus);
    auto* head = new QHBoxLayout;
    head->addWidget(rule, 1);
    head->addWidget(more);
    head->addWidget(close);
    auto* column = new QVBoxLayout(this);
    column->addLayout(head);
    column->addWidget(title);
    connect(close, &QPushButton::clicked, this, &QWidget::hide);
    goes.setSingleShot(true);
    connect(&goes, &QTimer::timeout, this, &QWidget::hide);
    window.installEventFilter(this);
    hide();
}

void AlertToast::tell(const QString& ruleName, const QString& headline, int count, int seconds) {
    shown += count;
    rule->setText(ruleName);
    title->setText(headline);
    more->setText(shown > 1 ? terminalText(TextId::AlertMore).arg(shown - 1) : QString());
    close->setAccessibleName(terminalText(TextId::AlertClose));
    close->setToolTip(close->accessibleName());
    setAccessibleName(ruleName + QLatin1StringView(": ") + headline);
    place();
    show();
    raise();
    staysUp = staysUp || seconds == 0;
    if (staysUp)
        goes.stop();
    else
        goes.start(std::max(std::chrono::milliseconds(std::chrono::seconds(seconds)),
                            goes.remainingTimeAsDuration()));
    QAccessibleEvent spoken(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&spoken);
}

void AlertToast::hideEvent(QHideEvent* event) {
    shown = 0;
    staysUp = false;
    goes.stop();
    QFrame::hideEvent(event);
}

void AlertToast::mouseReleaseEvent(QMouseEvent* event) {
    hide();
    emit opened();
    event->accept();
}

bool AlertToast::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && isVisible())
        place();
    return QFrame::eventFilter(watched, event);
}

void AlertToast::place() {
    const QWidget& window = *parentWidget();
    const int width =
        std::min(fontMetrics().averageCharWidth() * widthInCharacters, window.width() - 2 * fromEdge);
    setFixedWidth(width);
    setFixedHeight(std::max(layout()->heightForWidth(width), layout()->sizeHint().height()));
    move(window.width() - width - fromEdge, window.height() - height() - overStatusBar);
}

}  // namespace wirepane
