// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"

namespace wirepane {

// How far each source of news has been taken in. Thread: that of the database, which must outlive this.
class FeedPositions {
public:
    explicit FeedPositions(Database& database);

    // Inside the transaction that takes what lies before the position. False on failure.
    bool keep(const QString& source, const QString& position);
    // Empty: never heard of, or on failure (then `failed` is set).
    QString of(const QString& source, bool& failed);

private:
    Statement write;
    Statement read;
};

}  // namespace wirepane
