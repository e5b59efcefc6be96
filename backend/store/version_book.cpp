// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/version_book.h"

#include "backend/database/database.h"
#include "backend/store/limits.h"

#include <sqlite3.h>

namespace wirepane {

VersionBook::VersionBook(Database& owner)
    : database(owner),
      write(database,
            "INSERT INTO versions(headline, number, time, received, differs, title, text, shown, opened) "
            "SELECT id, 1 + coalesce((SELECT max(number) FROM versions WHERE headline = ?1), 0), time, "
            "received, "
            "title <> ?2 OR ?3 IS NOT NULL, title, text, coalesce(shown, 0), coalesce(opened, 0) "
            "FROM all_headlines LEFT JOIN stories ON stories.headline = id "
            "LEFT JOIN marks ON marks.headline = id "
            "WHERE id = ?1 AND (title <> ?2 OR (coalesce(text, '') <> '' AND unpacked(text, id) IS NOT ?3))"),
      drop(
          database,
          "DELETE FROM versions WHERE headline = ?1 AND "
          "number > (SELECT min(number) FROM versions WHERE headline = ?1) AND "
          "(number <= (SELECT max(number) FROM versions WHERE headline = ?1) - ?2 OR "
          "number <= (SELECT max(number) FROM (SELECT number, total(length(unpacked(text, headline))) "
          "OVER (ORDER BY number DESC) AS together FROM versions WHERE headline = ?1) WHERE together > ?3))"),
      dropSame(
          database,
          "DELETE FROM versions WHERE headline = ?1 AND NOT differs AND "
          "number = (SELECT max(number) FROM versions WHERE headline = ?1) AND "
          "title = (SELECT title FROM all_headlines WHERE id = ?1) AND "
          "unpacked(text, headline) IS (SELECT unpacked(text, headline) FROM stories WHERE headline = ?1)"),
      confirm(database, "UPDATE versions SET differs = 1 WHERE headline = ? AND NOT differs"),
      renew(database,
            "UPDATE marks SET state = 0, was_read = 1, shown = 0, opened = 0 WHERE headline = ?1 AND state = "
            "2 AND "
            "(SELECT differs FROM versions WHERE headline = ?1 ORDER BY number DESC LIMIT 1)"),
      writeWithdrawal(database, "REPLACE INTO withdrawals(headline, moment, reason) VALUES(?, ?, ?)"),
      eraseWithdrawal(database, "DELETE FROM withdrawals WHERE headline = ?") {}

bool VersionBook::keep(std::int64_t id, const QString& title, const std::optional<QByteArrayView>& story) {
    return Query(write, id, title, story).run() && renewMark(id) &&
           Query(drop, id, limits::versions - 1, limits::versionLength).run();
}

bool VersionBook::settle(std::int64_t id) {
    return Query(dropSame, id).run() && Query(confirm, id).run() && renewMark(id);
}

bool VersionBook::renewMark(std::int64_t id) {
    return sqlite3_changes(database.handle()) == 0 || Query(renew, id).run();
}

bool VersionBook::withdraw(std::int64_t id, std::int64_t moment, const QString& reason) {
    return Query(writeWithdrawal, id, moment, reason).run();
}

bool VersionBook::restore(std::int64_t id) {
    return Query(eraseWithdrawal, id).run();
}

}  // namespace wirepane
