// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane publish": the exit status of the program.
int runPublish();

}  // namespace wirepane
