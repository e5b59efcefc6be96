// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/key_router.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace wirepane {

// A filter on the part alone would not see the keys that its controls take.
KeyRouter::KeyRouter(const QWidget& routed, Taker taker) : part(routed), take(std::move(taker)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyRouter::eventFilter(QObject* watched, QEvent* event) {
    if ((event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) ||
        !watched->isWidgetType())
        return false;
    const auto* receiver = static_cast<const QWidget*>(watched);
    if (receiver != &part && !part.isAncestorOf(receiver))
        return false;
    return take(*static_cast<QKeyEvent*>(event));
}

}  // namespace wirepane
