// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

namespace wirepane {

// What a host must not do ends the program with a sentence that names it, where it happens: going on would
// end it later, somewhere else and without a word. The sentence goes where Qt's messages go, and begins with
// "wirepane: ".

// `mistake` is said unless `kept`.
WIREPANE_CONTRACT_EXPORT void requireOfHost(bool kept, const char* mistake);

// `operation` is being called: it must be on the interface thread, that of the application object. Without an
// application object nothing is required.
WIREPANE_CONTRACT_EXPORT void requireInterfaceThread(const char* operation);

}  // namespace wirepane
