// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QSize>

class QWidget;

namespace wirepane {

// What of the wanted size the screen has room for that the window is or will be on, with a frame around it.
WIREPANE_HOST_EXPORT QSize withinScreen(const QWidget& window, const QSize& wanted);

}  // namespace wirepane
