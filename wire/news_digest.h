// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "wire/wire_driver.h"

#include <optional>
#include <vector>

namespace wirepane {

// What a store holds of its news, in one number each: headline, place, moment, story, symbols, withdrawal.
// Stores that hold the same give the same. Thread: that of the database, which must outlive this.
class NewsDigest {
public:
    explicit NewsDigest(Database& database);

    // Nothing: there is no such news, or on failure, which the database then holds.
    std::optional<WireIdentity> of(int service, const QString& identity);
    // Of all news; nothing on failure.
    std::optional<std::vector<DayDigest>> ofDays();

private:
    static WireIdentity read(Query& query);

    Statement one;
    Statement all;
};

}  // namespace wirepane
