// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/pane_handle.h"

#include "host/contract/colour_roles.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace wirepane {

PaneHandle::PaneHandle(QWidget* parent, Calls itsCalls) : QWidget(parent), calls(std::move(itsCalls)) {
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void PaneHandle::placeOver(const QRect& line) {
    constexpr int beside = room / 2;
    setVisible(!line.isEmpty());
    if (line.isEmpty())
        return;
    upright = line.height() > line.width();
    setCursor(upright ? Qt::SplitHCursor : Qt::SplitVCursor);
    setGeometry(upright ? line.adjusted(-beside, 0, beside, 0) : line.adjusted(0, -beside, 0, beside));
    raise();
}

void PaneHandle::paintEvent(QPaintEvent* /*event*/) {
    const QPalette::ColorRole usual = dragged ? QPalette::Link : QPalette::Mid;
    const QColor colour = roleColour(dragged ? ColourRole::Accent : ColourRole::Line, palette().color(usual));
    const QRect line = upright ? QRect(width() / 2, 0, 1, height()) : QRect(0, height() / 2, width(), 1);
    QPainter(this).fillRect(line, colour);
}

void PaneHandle::mousePressEvent(QMouseEvent* event) {
    dragged = event->button() == Qt::LeftButton;
    update();
}

void PaneHandle::mouseMoveEvent(QMouseEvent* event) {
    if (!dragged)
        return;
    const QPoint place = mapToParent(event->position().toPoint());
    calls.moved(upright ? place.x() : place.y());
}

void PaneHandle::mouseReleaseEvent(QMouseEvent* /*event*/) {
    dragged = false;
    update();
}

void PaneHandle::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        calls.restored();
}

}  // namespace wirepane
