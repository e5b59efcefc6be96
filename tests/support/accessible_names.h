// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QWidget>

#include <gtest/gtest.h>

namespace wirepane {

// Every control in a window that the keyboard reaches has a role and a name for a screen reader; answers how
// many there are. What stands in lists and tables is not looked at.
inline int checkAccessibleNames(QAccessibleInterface& of) {
    int seen = 0;
    const QAccessible::State state = of.state();
    const QAccessible::Role role = of.role();
    if (state.focusable && !state.invisible) {
        ++seen;
        EXPECT_NE(role, QAccessible::NoRole);
        EXPECT_FALSE(of.text(QAccessible::Name).isEmpty())
            << of.object()->metaObject()->className() << " role " << role;
    }
    if (role == QAccessible::Table || role == QAccessible::List || role == QAccessible::Tree)
        return seen;
    for (int i = 0; i < of.childCount(); ++i) {
        QAccessibleInterface* child = of.child(i);
        if (child != nullptr && child->object() != nullptr)
            seen += checkAccessibleNames(*child);
    }
    return seen;
}

inline int checkAccessibleNames(QWidget& window) {
    return checkAccessibleNames(*QAccessible::queryAccessibleInterface(&window));
}

}  // namespace wirepane
