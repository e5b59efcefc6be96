// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"

#include <functional>

namespace wirepane {

// The rules by which the search index was made.
enum class SearchRules {
    Present,  // by which this program splits texts and folds characters
    Earlier,  // which it still knows: searches are answered by them
    Unknown,  // or cannot be read
};
SearchRules searchRulesOf(Database& database);
// Notes that the index was made by the present ones.
bool noteSearchRules(Database& database);

// Makes an empty index of this name for the present rules. False on failure.
bool makeSearchIndex(Database& database, const char* name);

// Hears how many of the headlines (more or less) are in the index that is being made.
using IndexProgress = std::function<void(std::int64_t done, std::int64_t total)>;

// Makes the search index anew and notes its rules. Call it inside a transaction; false on failure. `progress`
// is called every few thousand headlines.
bool rebuildSearchIndex(Database& database, const IndexProgress& progress = {});

}  // namespace wirepane
