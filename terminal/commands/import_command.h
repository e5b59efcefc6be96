// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane import FILE...": takes news, symbols and categories from files into a store. The application
// object exists. Result: the program's exit status.
int runImport();

}  // namespace wirepane
