// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

namespace wirepane {
class NewsModule;

// Loads the news module: the file beside the program, else the installed one.
Result<NewsModule*> loadModule();

}  // namespace wirepane
