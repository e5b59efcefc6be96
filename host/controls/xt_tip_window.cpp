// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/xt_tip_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <QToolTip>

#include <algorithm>

CXTTipWindow::CXTTipWindow(QWidget* parent) : QLabel(parent, Qt::ToolTip | Qt::FramelessWindowHint) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setPalette(QToolTip::palette());
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setMargin(4);
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &CXTTipWindow::vStop);
}

void CXTTipWindow::vShow(const QPoint& centre, const QString& text, int ms) {
    const QScreen* screen = QGuiApplication::screenAt(centre);
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    setWordWrap(false);
    setText(text);
    if (sizeHint().width() > room.width() / 2) {
        setWordWrap(true);
        resize(room.width() / 2, heightForWidth(room.width() / 2));
    } else {
        resize(sizeHint());
    }
    QRect place = rect();
    place.moveCenter(centre);
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    move(place.topLeft());
    show();
    raise();
    if (ms > 0)
        timer.start(ms);
    else
        timer.stop();
}

void CXTTipWindow::vStop() {
    timer.stop();
    hide();
}

void CXTTipWindow::mousePressEvent(QMouseEvent* /*event*/) {
    vStop();
}
