// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/database/statement.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace wirepane {

// The rules that the rows of a news store keep, beyond the structure of its file. Rows of news are looked at
// in pages of ids, so that nothing is read for long. Reads only. Thread: that of the database, which must
// outlive this.
class StoreRules {
public:
    explicit StoreRules(Database& database);

    // The rules of the tables that hold no news.
    void checkTables();
    // The rules of news with ids from `first` to before `end`.
    void checkPage(std::int64_t first, std::int64_t end);

    // Whether the news of a page stands in the indexes. It takes a look-up for each, which a reading of the
    // file's structure makes superfluous.
    void checkIndexes(std::int64_t first, std::int64_t end);
    // The first id from `id` on that has rows of news; nothing: none has.
    std::optional<std::int64_t> idFrom(std::int64_t id);

    // A sentence for each rule that was found broken, naming the first rows that break it. What could not be
    // looked at is a fault, too.
    QStringList faults() const;
    bool isBroken() const { return !faults().isEmpty(); }

private:
    template <class... Values>
    void look(std::size_t rule, const char* offenders, const Values&... values);

    Database& store;
    std::vector<QStringList> offenders;  // by rule
    QStringList failures;
    Statement nextId;
};

// A sentence that names offenders for its %1, a few of them.
QString namingSome(QStringView sentence, QStringList offenders);
// How many are named.
inline constexpr int namedOffenders = 3;

}  // namespace wirepane
