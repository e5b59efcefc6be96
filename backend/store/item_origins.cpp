// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/item_origins.h"

namespace wirepane {

ItemOrigins::ItemOrigins(Database& database)
    : byLink(database,
             "SELECT identity, max(source = ?3) FROM item_origins WHERE service = ?1 AND link = ?2 "
             "GROUP BY identity ORDER BY identity = ?4 DESC, min(taken) LIMIT 1"),
      write(
          database,
          "INSERT OR IGNORE INTO item_origins(service, identity, source, link, taken) VALUES(?, ?, ?, ?, ?)"),
      erase(database, "DELETE FROM item_origins WHERE taken < ?") {}

ItemOrigins::Known ItemOrigins::find(const NewsItem& item, const QString& source, bool& failed) {
    if (item.link.isEmpty())
        return {};
    Query query(byLink, item.service, item.link, source, item.identity);
    const Known known = query.next() ? Known{query.text(0), query.number(1) != 0} : Known{};
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
