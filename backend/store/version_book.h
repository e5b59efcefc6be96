// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>

namespace wirepane {

// What news was before it was sent again with another title or story, and what its publishers have withdrawn.
// The first version of a piece of news stays, and its last ones, within limits.h. The same title and story
// again make no version, nor does a story that was still to come; where one is to come again, what has
// changed shows when it is there. News that was read
// is marked as new again when it has another version. Operations answer false on failure, which the database
// then holds. Thread: that of the database, which must outlive this.
class VersionBook {
public:
    explicit VersionBook(Database& database);

    // Before title and story are replaced. The story is in UTF-8; none: it is still to come.
    bool keep(std::int64_t id, const QString& title, const std::optional<QByteArrayView>& story);
    // After a story that was still to come has been written.
    bool settle(std::int64_t id);

    bool withdraw(std::int64_t id, std::int64_t moment, const QString& reason);
    bool restore(std::int64_t id);

private:
    // When the statement before has changed something.
    bool renewMark(std::int64_t id);

    Database& database;
    Statement write;
    Statement drop;
    Statement dropSame;
    Statement confirm;
    Statement renew;
    Statement writeWithdrawal;
    Statement eraseWithdrawal;
};

}  // namespace wirepane
