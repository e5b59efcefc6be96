// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/mark_book.h"

namespace wirepane {

MarkBook::MarkBook(Database& database)
    : read(database,
           "SELECT id, coalesce(state, time <= (SELECT moment FROM marks_begin)), starred, was_read, "
           "shown, opened FROM headlines LEFT JOIN marks ON headline = id "
           "WHERE service = ? AND time = ? AND sequence = ?"),
      write(database,
            "REPLACE INTO marks(headline, state, starred, was_read, shown, opened) "
            "VALUES(?, ?, ?, ?, ?, ?)") {}

std::optional<MarkBook::Known> MarkBook::look(const HeadlineKey& key, bool& failed) {
    Query query(read, key.service, key.time, key.sequence);
    const bool isThere = query.next();
    failed = query.failed();
    if (!isThere)
        return std::nullopt;
    Known known{query.number(0), {}};
    known.mark.state = static_cast<ReadingState>(query.smallNumber(1));
    known.mark.isStarred = query.number(2) != 0;
    known.mark.wasRead = query.number(3) != 0;
    known.mark.shown = query.number(4);
    known.mark.opened = query.number(5);
    return known;
}

ReadingMark MarkBook::find(const HeadlineKey& key) {
    bool failed = false;
    const std::optional<Known> known = look(key, failed);
    return known ? known->mark : ReadingMark();
}

bool MarkBook::change(const HeadlineKey& key, const MarkChange& change, std::int64_t now) {
    bool failed = false;
    const std::optional<Known> known = look(key, failed);
    if (!known)
        return !failed;
    const ReadingMark mark = changedMark(known->mark, change, now);
    if (mark == known->mark)
        return true;
    return Query(write, known->id, static_cast<int>(mark.state), int{mark.isStarred}, int{mark.wasRead},
                 mark.shown, mark.opened)
        .run();
}

}  // namespace wirepane
