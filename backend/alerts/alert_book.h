// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_entry.h"
#include "backend/database/statement.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

// The alerts of an open store: what rules have matched last, and how far the news has been looked at. Thread:
// that of the database, which must outlive this.
class AlertBook {
public:
    static constexpr int mostKept = 500;

    explicit AlertBook(Database& database);

    // Oldest first.
    std::vector<AlertEntry> entries();
    // The last arrival that was looked at; nothing: none yet.
    std::optional<std::int64_t> position();
    // The number of the newest entry that the user has seen; 0: none.
    std::int64_t seen();

    // Inside a transaction; false on failure, which the database then holds. What is there already, of the
    // same rule, headline and title, is not added again: `added` are those that were not, with their numbers.
    bool add(const std::vector<AlertEntry>& entries, std::vector<AlertEntry>& added);
    // Never back.
    bool moveTo(std::int64_t position);
    bool see(std::int64_t number);

private:
    Database& store;
    Statement all;
    Statement state;
    Statement insert;
    Statement trim;
    Statement move;
    Statement look;
};

}  // namespace wirepane
