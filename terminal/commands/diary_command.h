// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane diary": verifies the diary beside a store, writes it into a file, shows what was on the screens.
// The application object exists, with fonts. Result: the program's exit status.
int runDiary();

}  // namespace wirepane
