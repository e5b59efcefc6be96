// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QString>

class QWidget;

// Messages that cross module boundaries are known by name: the same name gives the same event type in host
// and module. Interface thread only.
QEvent::Type RegisterMessage(const QString& name);

// A registered message with its two parameters.
class RegisteredMessageEvent : public QEvent {
public:
    RegisteredMessageEvent(QEvent::Type type, quintptr first, quintptr second)
        : QEvent(type), firstParameter(first), secondParameter(second) {}

    const quintptr firstParameter;
    const quintptr secondParameter;
};

// Delivers a message to `window` at once; a null window takes nothing.
void SendRegisteredMessage(QWidget* window, QEvent::Type type, quintptr first, quintptr second = 0);
