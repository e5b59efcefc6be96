// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/frame_picture.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

// What lies higher comes later: windows, then those that stay on top, then menus and drop-downs, then tips.
int layerOf(const QWidget* window) {
    switch (window->windowType()) {
        case Qt::ToolTip:
            return 3;
        case Qt::Popup:
            return 2;
        default:
            return window->windowFlags().testFlag(Qt::WindowStaysOnTopHint) ? 1 : 0;
    }
}

// A dialog lies over the window that it belongs to.
int depthOf(const QWidget* window) {
    int depth = 0;
    for (const QWidget* owner = window->parentWidget(); owner != nullptr; owner = owner->parentWidget())
        depth += owner->isWindow() ? 1 : 0;
    return depth;
}

}  // namespace

QPixmap pictureWithWindowsAbove(QWidget& window) {
    QPixmap picture = window.grab();
    QWidgetList others = QApplication::topLevelWidgets();
    others.removeIf([&window](const QWidget* other) { return other == &window || !other->isVisible(); });
    std::stable_sort(others.begin(), others.end(), [](const QWidget* a, const QWidget* b) {
        return std::pair(layerOf(a), depthOf(a)) < std::pair(layerOf(b), depthOf(b));
    });
    QPainter painter(&picture);
    for (QWidget* other : others)
        painter.drawPixmap(window.mapFromGlobal(other->mapToGlobal(QPoint(0, 0))), other->grab());
    return picture;
}

}  // namespace wirepane
