// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane backup": copies a store to a new file while others use it. The application object exists. Result:
// the program's exit status.
int runBackup();

}  // namespace wirepane
