// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane trim": lets old news leave the store. Result: the program's exit status.
int runTrim();

}  // namespace wirepane
