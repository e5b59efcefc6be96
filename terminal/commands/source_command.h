// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane source": shows and changes the list of sources over the network. Result: the program's exit
// status.
int runSource();

}  // namespace wirepane
