// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

class QWidget;

// Controls are addressed by number within their window: menus, scripts and tests find them so. The same
// number may mean different controls in different windows.
WIREPANE_HOST_EXPORT void SetWindowId(QWidget* control, int id);

// The number of a control; 0 when it has none.
WIREPANE_HOST_EXPORT int WindowId(const QWidget* control);

// The direct child of `window` with this number; null when there is none.
WIREPANE_HOST_EXPORT QWidget* GetDlgItem(const QWidget* window, int id);
