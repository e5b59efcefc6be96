// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// The program: runs the command that the arguments name, or the terminal. Result: its exit status.
int runProgram(int argc, char** argv);

}  // namespace wirepane
