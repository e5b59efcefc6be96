// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// "wirepane export FILE": writes the news of a day, or what a search finds, as text or PDF. The application
// object exists, one with windows. Result: the program's exit status.
int runExport();

}  // namespace wirepane
