// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// What the program returns.
using ExitStatus = int;
inline constexpr ExitStatus exitDone = 0;
inline constexpr ExitStatus exitPartly =
    1;  // import: something was rejected, or it was stopped; check: faults were found
inline constexpr ExitStatus exitUnusable = 2;  // wrong arguments, a store or a file that cannot be used

}  // namespace wirepane
