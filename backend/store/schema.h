// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/fixed_services.h"

#include <cstdint>
#include <span>

namespace wirepane {

// The steps that make a store, oldest first, for migrate(). A released step is never changed.
std::span<const char* const> storeMigrations();

// The version of a store that all the steps have made.
std::int64_t storeVersion();

// Marks a database file as a news store ("WPNE").
inline constexpr std::int64_t storeApplicationId = 0x57504e45;

// Warrants number their categories for themselves; all other services share one numbering, because one file
// of category names serves them all.
constexpr int categorySpaceOf(unsigned char service) {
    return service == warrantService ? warrantService : 0;
}

}  // namespace wirepane
