// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"

namespace wirepane {

// Gives a store that was just made its first services, with the first categories of each, and the moment from
// which on its news is new to its readers. Call it inside the transaction that makes the tables. False on
// failure.
bool addDefaults(Database& database);

// Takes the first categories away from a store that holds no news yet, for one that brings categories of its
// own. False on failure.
bool removeDefaultCategories(Database& database);

}  // namespace wirepane
