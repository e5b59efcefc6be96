// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/item_origins.h"

#include <algorithm>

namespace wirepane {

namespace {

// One that begins with the name of a scheme is nobody else's; others count within their service.
bool isUri(const QString& identity) {
    const qsizetype colon = identity.indexOf(u':');
    return colon > 0 && identity.front().isLetter() &&
           std::all_of(identity.begin(), identity.begin() + colon, [](QChar c) {
               return c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'+' || c == u'-' || c == u'.');
           });
}

}  // namespace

// Services are few, and each is a look into an index.
ItemOrigins::ItemOrigins(Database& database)
    : byLink(database,
             "SELECT item_origins.service, identity, max(source = ?3) FROM services "
             "CROSS JOIN item_origins ON item_origins.service = services.id WHERE link = ?2 "
             "GROUP BY item_origins.service, identity "
             "ORDER BY item_origins.service = ?1 DESC, identity = ?4 DESC, min(taken) LIMIT 1"),
      byIdentity(database,
                 "SELECT item_origins.service, identity, max(source = ?3) FROM services "
                 "CROSS JOIN item_origins ON item_origins.service = services.id WHERE identity = ?4 "
                 "GROUP BY item_origins.service "
                 "ORDER BY item_origins.service = ?1 DESC, min(taken) LIMIT 1"),
      write(
          database,
          "INSERT OR IGNORE INTO item_origins(service, identity, source, link, taken) VALUES(?, ?, ?, ?, ?)"),
      erase(database, "DELETE FROM item_origins WHERE taken < ?") {}

ItemOrigins::Known ItemOrigins::find(const NewsItem& item, const QString& source, bool& failed) {
    Known known = item.link.isEmpty() ? Known() : firstOf(byLink, item, source, failed);
    if (known.identity.isEmpty() && !failed && isUri(item.identity))
        known = firstOf(byIdentity, item, source, failed);
    return known;
}

ItemOrigins::Known ItemOrigins::firstOf(Statement& statement, const NewsItem& item, const QString& source,
                                        bool& failed) {
    Query query(statement, item.service, item.link, source, item.identity);
    Known known;
    if (query.next())
        known = {static_cast<unsigned char>(query.number(0)), query.text(1), query.number(2) != 0};
    failed = query.failed();
    return known;
}

bool ItemOrigins::note(const NewsItem& item, const QString& source, std::int64_t now) {
    return Query(write, item.service, item.identity, source, item.link, now).run();
}

bool ItemOrigins::forget(std::int64_t before) {
    return Query(erase, before).run();
}

}  // namespace wirepane
