// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/registered_message.h"

#include <QApplication>
#include <QHash>
#include <QWidget>

namespace wirepane {

RegisteredMessageEvent::~RegisteredMessageEvent() = default;

QEvent::Type registerMessage(const QString& name) {
    static QHash<QString, int> types;
    auto known = types.constFind(name);
    if (known == types.constEnd())
        known = types.insert(name, QEvent::registerEventType());
    return static_cast<QEvent::Type>(*known);
}

void sendRegisteredMessage(QWidget* window, QEvent::Type type, quintptr first, quintptr second) {
    if (window == nullptr)
        return;
    RegisteredMessageEvent event(type, first, second);
    QApplication::sendEvent(window, &event);
}

}  // namespace wirepane
