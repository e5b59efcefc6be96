// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/database/statement.h"
#include "backend/news_item.h"
#include "backend/result.h"

#include <QDate>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace wirepane {

// The news of one local day as a store holds it, oldest first, for playing it again. Reads only; what comes
// into the store later is not seen.
class StoredDay {
public:
    static Result<std::unique_ptr<StoredDay>> open(const QString& storePath, QDate day);

    std::size_t size() const { return entries.size(); }
    std::int64_t timeOf(std::size_t index) const { return entries[index].time; }
    // Gives another store the services, categories, symbols and quotes of this one, in place of those that it
    // has under the same ids and codes.
    Done copyCatalogues(Database& target) const;
    // The whole item, with the name of its category and the number that it has in the store.
    Result<NewsItem> item(std::size_t index);

private:
    struct Entry {
        std::int64_t time;
        std::int64_t id;
    };

    explicit StoredDay(std::unique_ptr<Database> database);
    bool load(QDate day);

    std::unique_ptr<Database> database;
    Statement oneItem;
    Statement allRelated;
    std::vector<Entry> entries;
};

}  // namespace wirepane
