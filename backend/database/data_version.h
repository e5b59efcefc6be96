// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace wirepane {

// Tells a connection whether others have written to its database. Thread: that of the database, which must
// outlive this.
class DataVersion {
public:
    explicit DataVersion(Database& database) : statement(database, "PRAGMA data_version") {}

    // Whether another connection has written since the last call; the first call, and one that fails: true.
    bool hasChanged() {
        const std::optional<std::int64_t> present = read();
        return std::exchange(last, present) != present || !present;
    }
    // A number that is another one after others have written; nothing on failure.
    std::optional<std::int64_t> read() {
        Query query(statement);
        return query.next() ? std::optional(query.number(0)) : std::nullopt;
    }

private:
    Statement statement;
    std::optional<std::int64_t> last;
};

}  // namespace wirepane
