// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/key_router.h"

#include "news_view/trv_news_ctrl_view.h"

#include <QCoreApplication>
#include <QKeyEvent>

// A filter on the view alone would not see the keys that its controls take.
KeyRouter::KeyRouter(TRVNewsCtrlView& newsView) : view(newsView) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyRouter::eventFilter(QObject* watched, QEvent* event) {
    if ((event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) ||
        !watched->isWidgetType())
        return false;
    const auto* receiver = static_cast<const QWidget*>(watched);
    if (receiver != &view && !view.isAncestorOf(receiver))
        return false;
    return view.PreTranslateMessage(*static_cast<QKeyEvent*>(event));
}
