// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/window_id.h"

#include <QVariant>
#include <QWidget>

namespace {
constexpr char idProperty[] = "windowId";
}

void SetWindowId(QWidget* control, int id) {
    control->setProperty(idProperty, id);
}

int WindowId(const QWidget* control) {
    return control->property(idProperty).toInt();
}

QWidget* GetDlgItem(const QWidget* window, int id) {
    for (QObject* child : window->children()) {
        auto* control = qobject_cast<QWidget*>(child);
        if (control != nullptr && WindowId(control) == id)
            return control;
    }
    return nullptr;
}
