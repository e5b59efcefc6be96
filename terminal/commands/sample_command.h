// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane sample": takes the sample wire into a store. The application object exists. Result: the program's
// exit status.
int runSample();

}  // namespace wirepane
