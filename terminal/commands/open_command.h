// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// Whether the windows shall be drawn off screen: asked for, wanted by a tour, or no display is there. Known
// before there is an application object.
bool wantsOffscreen(int argc, const char* const* argv);

// "wirepane" without a command: the terminal's windows, driven by the user, by scripts, or by the tour. The
// application object exists. Result: the program's exit status.
int runTerminal();

}  // namespace wirepane
