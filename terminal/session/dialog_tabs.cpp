// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/dialog_tabs.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QTabBar>

namespace wirepane {

namespace {

QTabBar* tabsOf(QObject* watched) {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    const auto* dialog = qobject_cast<const QDialog*>(widget != nullptr ? widget->window() : nullptr);
    if (dialog == nullptr)
        return nullptr;
    const auto bars = dialog->findChildren<QTabBar*>();
    for (QTabBar* bar : bars) {
        if (bar->isVisible() && bar->count() > 1)
            return bar;
    }
    return nullptr;
}

}  // namespace

DialogTabs::DialogTabs(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

bool DialogTabs::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    const bool next = key->key() == Qt::Key_PageDown;
    if (key->modifiers() != Qt::ControlModifier || (!next && key->key() != Qt::Key_PageUp))
        return false;
    QTabBar* bar = tabsOf(watched);
    if (bar == nullptr)
        return false;
    bar->setCurrentIndex((bar->currentIndex() + (next ? 1 : bar->count() - 1)) % bar->count());
    return true;
}

}  // namespace wirepane
