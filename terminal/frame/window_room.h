// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QScreen>
#include <QWidget>

namespace wirepane {

// What a window may fill of its screen, without its title and its edges.
inline QSize windowRoom(const QWidget& window) {
    constexpr int around = 32;
    return window.screen()->availableGeometry().size() - QSize(around, 2 * around);
}

}  // namespace wirepane
