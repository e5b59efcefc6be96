// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

class QWidget;

// What the bare story window needs of the host's main frame that it belongs to. Interface thread only.
class WIREPANE_HOST_EXPORT CMainFrame {
public:
    virtual ~CMainFrame();

    // The window that the story window belongs to, which outlives it.
    virtual QWidget* frameWindow() = 0;
    // The user has closed the story window; it can be shown again.
    virtual void onStoryWindowClosed() {}
};
