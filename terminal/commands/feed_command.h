// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane feed": takes news from standard input, line by line as it comes, into a store or a running
// terminal. The application object exists. Result: the program's exit status.
int runFeed();

}  // namespace wirepane
