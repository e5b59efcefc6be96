// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/news_writer.h"

#include "host/contract/clock.h"

namespace wirepane {

NewsWriter::NewsWriter(Database& owner)
    : database(owner),
      findIdentity(owner,
                   "SELECT id, version, time, day, sequence, category, "
                   "EXISTS(SELECT 1 FROM stories WHERE headline = headlines.id) "
                   "FROM headlines WHERE service = ? AND identity = ?"),
      findNumber(owner,
                 "SELECT 1 FROM headlines WHERE service = ?1 AND sequence = ?2 AND (day = ?3 OR time = ?4) "
                 "AND id <> ?5"),
      insertHeadline(owner,
                     "INSERT INTO headlines(service, time, sequence, day, category, version, received, "
                     "identity, title) VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      updateHeadline(owner,
                     "UPDATE headlines SET time = ?2, sequence = ?3, day = ?4, category = ?5, version = ?6, "
                     "received = ?7, title = ?8 WHERE id = ?1"),
      insertText(owner, "INSERT INTO stories(headline, text) VALUES(?, ?)"),
      deleteText(owner, "DELETE FROM stories WHERE headline = ?"),
      insertRelated(owner,
                    "INSERT INTO related_symbols(headline, position, market, code, service, time, sequence) "
                    "VALUES(?, ?, ?, ?, ?, ?, ?)"),
      deleteRelated(owner, "DELETE FROM related_symbols WHERE headline = ?"),
      addToSearch(owner,
                  "INSERT INTO news_search(rowid, title, story) "
                  "SELECT id, title, story FROM news_text WHERE id = ?"),
      takeFromSearch(owner,
                     "INSERT INTO news_search(news_search, rowid, title, story) "
                     "SELECT 'delete', id, title, story FROM news_text WHERE id = ?") {}

std::optional<KnownNews> NewsWriter::find(unsigned char service, const QString& identity, bool& failed) {
    Query query(findIdentity, service, identity);
    const bool found = query.next();
    failed = query.failed();
    if (!found)
        return std::nullopt;
    return KnownNews{query.number(0),      query.smallNumber(1), query.number(2),     query.smallNumber(3),
                     query.smallNumber(4), query.smallNumber(5), query.number(6) != 0};
}

bool NewsWriter::isFree(const NewsItem& item, std::int32_t day, std::int32_t sequence, std::int64_t exceptId,
                        bool& failed) {
    Query query(findNumber, item.service, sequence, day, item.time, exceptId);
    const bool found = query.next();
    failed = query.failed();
    return !found && !failed;
}

bool NewsWriter::insert(const NewsItem& item, const NewsPlace& place) {
    if (!Query(insertHeadline, item.service, item.time, place.sequence, place.day, place.category,
               item.version, host_clock::now(), item.identity, item.title)
             .run())
        return false;
    const std::int64_t id = database.lastInsertId();
    return writeStory(id, item.story) && writeRelated(id, item, place) && Query(addToSearch, id).run();
}

bool NewsWriter::replace(std::int64_t id, const NewsItem& item, const NewsPlace& place) {
    // The index forgets a text only when it is told the very text that it knows.
    return Query(takeFromSearch, id).run() &&
           Query(updateHeadline, id, item.time, place.sequence, place.day, place.category, item.version,
                 host_clock::now(), item.title)
               .run() &&
           Query(deleteText, id).run() && writeStory(id, item.story) && Query(deleteRelated, id).run() &&
           writeRelated(id, item, place) && Query(addToSearch, id).run();
}

bool NewsWriter::insertStory(std::int64_t id, const QString& story) {
    return Query(takeFromSearch, id).run() && writeStory(id, story) && Query(addToSearch, id).run();
}

bool NewsWriter::writeStory(std::int64_t id, const std::optional<QString>& story) {
    return !story || Query(insertText, id, *story).run();
}

bool NewsWriter::writeRelated(std::int64_t id, const NewsItem& item, const NewsPlace& place) {
    int position = 0;
    for (const SymbolRef& symbol : item.related) {
        if (!Query(insertRelated, id, position++, symbol.market, symbol.code, item.service, item.time,
                   place.sequence)
                 .run())
            return false;
    }
    return true;
}

}  // namespace wirepane
