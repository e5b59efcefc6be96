// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/window_id.h"

#include <QVariant>
#include <QWidget>

namespace wirepane {

namespace {
constexpr char idProperty[] = "windowId";
}

void setWindowId(QWidget* control, int id) {
    control->setProperty(idProperty, id);
}

int windowId(const QWidget* control) {
    return control->property(idProperty).toInt();
}

QWidget* dlgItem(const QWidget* window, int id) {
    for (QObject* child : window->children()) {
        auto* control = qobject_cast<QWidget*>(child);
        if (control != nullptr && windowId(control) == id)
            return control;
    }
    return nullptr;
}

}  // namespace wirepane
