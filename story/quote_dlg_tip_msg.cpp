// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/quote_dlg_tip_msg.h"

#include "host/controls/quote_static_ex.h"
#include "host/controls/window_id.h"
#include "story/story_ids.h"

#include <QApplication>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QTimerEvent>

#include <algorithm>

using namespace wirepane;

namespace {

constexpr int placePeriodMs = 100;
constexpr int countDownPeriodMs = 1000;
constexpr int smallestWidth = 100;
constexpr int largestWidth = 800;
constexpr int smallestHeight = 22;
constexpr int horizontalRoom = 10;
constexpr int verticalRoom = 8;
constexpr int keepPlace = -1;
constexpr QPoint placeForOrigin(2, 2);  // a tip at (0, 0) would hide its window's corner

// The window that a widget belongs to; a dialog, such as the story window, belongs to that of its parent.
const QWidget* frameOf(const QWidget* widget) {
    const QWidget* frame = widget->window();
    while (frame->windowType() == Qt::Dialog && frame->parentWidget() != nullptr)
        frame = frame->parentWidget()->window();
    return frame;
}

// Right after a dialog no window is active, until the one below it is again.
bool isOfActiveWindow(const QWidget* widget) {
    const QWidget* active = QApplication::activeWindow();
    if (active == nullptr)
        return widget != nullptr && QGuiApplication::applicationState() == Qt::ApplicationActive;
    return widget == nullptr || frameOf(widget) == frameOf(active);
}

}  // namespace

CQuoteDlgTipMsg::CQuoteDlgTipMsg(QWidget* parent) : QWidget(parent) {
    setWindowId(this, story_ids::tip);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

bool CQuoteDlgTipMsg::CreateByID(QWidget* parent) {
    if (parent != nullptr)
        setParent(parent);
    label = new CQuoteStaticEx(this);
    setWindowId(label, story_ids::tipText);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    // Its colours are often those of what lies under it.
    label->setFrameStyle(QFrame::Box | QFrame::Plain);
    hide();
    return true;
}

void CQuoteDlgTipMsg::vSetInfo(QWidget* focusOwner, const QString& tipText, const QColor& foreground,
                               const QColor& background, int timeMs) {
    displayTimeMs = timeMs;
    owner = focusOwner;
    text = tipText;
    vSetInfoColor(foreground, background);
}

void CQuoteDlgTipMsg::vSetInfoColor(const QColor& foreground, const QColor& background) {
    textColour = foreground;
    backColour = background;
}

// Text that is too wide is cut by its average character width, so that what stays fills the largest tip.
void CQuoteDlgTipMsg::fitToText() {
    const QFontMetrics metrics(tipFont.value_or(font()));
    const int textWidth = metrics.horizontalAdvance(text);
    int width = textWidth + horizontalRoom;
    if (width > largestWidth) {
        const int average = textWidth / static_cast<int>(text.size());
        text.truncate(average == 0 ? largestWidth : largestWidth / average);
        width = largestWidth;
    }
    tipSize =
        QSize(std::max(width, smallestWidth), std::max(metrics.height() + verticalRoom, smallestHeight));
}

void CQuoteDlgTipMsg::vShow(QWidget* parent, int top, int left, bool toTheLeft) {
    if (label == nullptr || !isOfActiveWindow(parent))
        return;
    label->setColors(textColour, backColour);
    if (top != keepPlace && left != keepPlace)
        position = QPoint(left, top);
    fitToText();
    if (toTheLeft)
        position.rx() -= tipSize.width();
    if (parent != nullptr) {
        hide();
        owner = parent;
        setParent(parent);
    }
    place();
    label->setFont(tipFont.value_or(font()));
    label->setText(text);
    label->setGeometry(QRect(QPoint(0, 0), tipSize));
    show();
    raise();
    remainingMs = displayTimeMs;
    placeTimer.start(placePeriodMs, this);
    countDown.start(countDownPeriodMs, this);
    if (owner != nullptr)
        owner->setFocus();
}

void CQuoteDlgTipMsg::vStop() {
    placeTimer.stop();
    countDown.stop();
    hide();
}

void CQuoteDlgTipMsg::place() {
    if (owner == nullptr && parentWidget() == nullptr)
        return;
    setGeometry(QRect(position.isNull() ? placeForOrigin : position, tipSize));
}

void CQuoteDlgTipMsg::timerEvent(QTimerEvent* event) {
    if (event->timerId() == placeTimer.timerId()) {
        place();
    } else if (event->timerId() == countDown.timerId()) {
        remainingMs -= countDownPeriodMs;
        if (remainingMs < 1)
            vStop();
    } else {
        QWidget::timerEvent(event);
    }
}

void CQuoteDlgTipMsg::mousePressEvent(QMouseEvent* event) {
    QWidget::mousePressEvent(event);
    vStop();
}
