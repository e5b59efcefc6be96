// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// wirepane search: prints the news of a store that holds the given keywords. Returns the exit status.
int runSearch();

}  // namespace wirepane
