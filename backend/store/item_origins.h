// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/news_item.h"

#include <QString>

namespace wirepane {

// Which sources have brought a piece of news, and under which link: by that the same piece is known again
// when another source brings it under an identity of its own or to another service, or its own source under
// a new identity. Thread: that of the database, which must outlive this.
class ItemOrigins {
public:
    explicit ItemOrigins(Database& database);

    struct Known {
        unsigned char service = 0;
        QString identity;         // under which it is in that service; empty: it is not known
        bool isBySource = false;  // this source has brought it before
    };
    // By its link, or by an identity that is the same everywhere, in its own service first.
    Known find(const NewsItem& item, const QString& source, bool& failed);
    // In the transaction that takes the item. False on failure.
    bool note(const NewsItem& item, const QString& source, std::int64_t now);
    // Forgets what was noted before. False on failure.
    bool forget(std::int64_t before);

private:
    static Known firstOf(Statement& statement, const NewsItem& item, const QString& source, bool& failed);

    Statement byLink;
    Statement byIdentity;
    Statement write;
    Statement erase;
};

}  // namespace wirepane
