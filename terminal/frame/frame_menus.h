// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {

class MainFrame;

// The menus of the main frame, in the language in force. Each wires its commands to the frame's signals.
void addFileMenu(MainFrame& frame);
// Check marks stand at the scheme and the language that are given.
void addViewMenu(MainFrame& frame, const QString& scheme, const QString& language);

}  // namespace wirepane
