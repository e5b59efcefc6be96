// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/database.h"

namespace wirepane {

// Whether the search index was made by the rules that this program folds characters by. False as well when
// that cannot be read.
bool hasPresentSearchRules(Database& database);

// Makes the search index anew and notes its rules. Call it inside a transaction; false on failure.
bool rebuildSearchIndex(Database& database);

}  // namespace wirepane
