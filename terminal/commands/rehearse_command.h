// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane rehearse": how often a query would have spoken. Result: the program's exit status.
int runRehearse();

}  // namespace wirepane
