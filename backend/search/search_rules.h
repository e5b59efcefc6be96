// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"

#include <functional>

namespace wirepane {

// Whether the search index was made by the rules that this program folds characters by. False as well when
// that cannot be read.
bool hasPresentSearchRules(Database& database);

// Hears how many of the headlines (more or less) are in the index that is being made.
using IndexProgress = std::function<void(std::int64_t done, std::int64_t total)>;

// Makes the search index anew and notes its rules. Call it inside a transaction; false on failure. `progress`
// is called every few thousand headlines.
bool rebuildSearchIndex(Database& database, const IndexProgress& progress = {});

}  // namespace wirepane
