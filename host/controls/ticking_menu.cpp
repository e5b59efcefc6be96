// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/ticking_menu.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace wirepane {

bool TickingMenu::tick(Qt::KeyboardModifiers modifiers) {
    QAction* entry = activeAction();
    if (!staysOpen || entry == nullptr || !entry->isEnabled() || entry->isSeparator())
        return false;
    if (modifiers.testFlag(Qt::ShiftModifier) && entry->isCheckable())
        emit onlyAsked(entry);
    else
        entry->trigger();
    return true;
}

void TickingMenu::mouseReleaseEvent(QMouseEvent* event) {
    if (!rect().contains(event->position().toPoint()) || !tick(event->modifiers()))
        QMenu::mouseReleaseEvent(event);
}

void TickingMenu::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space || !tick(event->modifiers()))
        QMenu::keyPressEvent(event);
}

}  // namespace wirepane
