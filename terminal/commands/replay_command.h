// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane replay": plays a day of a store into a running terminal. The application object exists. Result:
// the program's exit status.
int runReplay();

}  // namespace wirepane
