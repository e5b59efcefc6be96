// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane check": verifies a store without changing it. The application object exists. Result: the
// program's exit status.
int runCheck();

}  // namespace wirepane
