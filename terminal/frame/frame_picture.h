// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>

class QWidget;

namespace wirepane {

// The picture of a window with the application's other windows that lie over it: dialogs, menus, tips.
QPixmap pictureWithWindowsAbove(QWidget& window);

}  // namespace wirepane
