// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/migrations.h"

namespace wirepane {

bool migrate(Database& database, std::span<const char* const> steps) {
    std::int64_t version = 0;
    if (!database.readNumber("PRAGMA user_version", version))
        return false;
    const auto wanted = static_cast<std::int64_t>(steps.size());
    if (version >= wanted)
        return true;
    for (std::int64_t step = version; step < wanted; ++step) {
        if (!database.execute(steps[static_cast<std::size_t>(step)]))
            return false;
    }
    // A pragma takes no parameters.
    return database.execute(("PRAGMA user_version = " + std::to_string(wanted)).c_str());
}

}  // namespace wirepane
