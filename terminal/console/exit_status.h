// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// What the program returns.
enum ExitStatus : int {
    exitDone = 0,
    exitPartly = 1,    // import: something was rejected, or it was stopped; check: faults were found
    exitUnusable = 2,  // wrong arguments, a store or a file that cannot be used
};

}  // namespace wirepane
