// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/view_desk.h"

#include <QPainter>

namespace wirepane {

namespace {

constexpr QSize ordinarySize(1100, 700);
constexpr auto fillsDesk = "wirepane.fillsDesk";

}  // namespace

ViewDesk::ViewDesk(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ViewDesk::place(QWidget* view, const QSize& size) {
    view->setProperty(fillsDesk, !size.isValid());
    view->setGeometry(QRect(QPoint(0, 0), size.isValid() ? size : this->size()));
    view->raise();
}

void ViewDesk::setHint(const QString& text) {
    hint = text;
    update();
}

void ViewDesk::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, hint);
}

QSize ViewDesk::sizeHint() const {
    return ordinarySize;
}

void ViewDesk::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const QList<QWidget*> views = filling();
    for (QWidget* view : views)
        view->resize(size());
}

QList<QWidget*> ViewDesk::filling() const {
    QList<QWidget*> views = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    views.removeIf([](const QWidget* view) { return !view->property(fillsDesk).toBool(); });
    return views;
}

}  // namespace wirepane
