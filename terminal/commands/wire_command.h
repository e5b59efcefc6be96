// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane wire": the exit status of the program.
int runWire();

}  // namespace wirepane
