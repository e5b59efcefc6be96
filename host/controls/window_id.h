// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

class QWidget;

namespace wirepane {

// Controls are addressed by number within their window: menus, scripts and tests find them so. The same
// number may mean different controls in different windows.
WIREPANE_HOST_EXPORT void setWindowId(QWidget* control, int id);

// The number of a control; 0 when it has none.
WIREPANE_HOST_EXPORT int windowId(const QWidget* control);

// The direct child of `window` with this number; null when there is none.
WIREPANE_HOST_EXPORT QWidget* dlgItem(const QWidget* window, int id);

}  // namespace wirepane
