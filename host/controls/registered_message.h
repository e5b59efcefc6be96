// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QEvent>
#include <QString>

class QWidget;

namespace wirepane {

// Messages that cross module boundaries are known by name: the same name gives the same event type in host
// and module. Interface thread only.
WIREPANE_HOST_EXPORT QEvent::Type registerMessage(const QString& name);

// A registered message with its two parameters.
class WIREPANE_HOST_EXPORT RegisteredMessageEvent : public QEvent {
public:
    RegisteredMessageEvent(QEvent::Type type, quintptr first, quintptr second)
        : QEvent(type), firstParameter(first), secondParameter(second) {}
    ~RegisteredMessageEvent() override;

    const quintptr firstParameter;
    const quintptr secondParameter;
};

// Delivers a message to `window` at once; a null window takes nothing.
WIREPANE_HOST_EXPORT void sendRegisteredMessage(QWidget* window, QEvent::Type type, quintptr first,
                                                quintptr second = 0);

}  // namespace wirepane
