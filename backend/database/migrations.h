// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"

#include <span>

namespace wirepane {

// Brings a database from the version that it has (`user_version`) to version `steps.size()`: step i leads
// from version i to version i + 1. Call it inside a transaction, so that a step that fails leaves nothing
// behind. False on failure; a database of a later version is left as it is, with true.
bool migrate(Database& database, std::span<const char* const> steps);

}  // namespace wirepane
