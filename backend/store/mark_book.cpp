// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/mark_book.h"

namespace wirepane {

MarkBook::MarkBook(Database& database)
    : read(database,
           "SELECT id, coalesce(state, time <= (SELECT moment FROM marks_begin)), starred, was_read, "
           "shown, opened FROM headlines LEFT JOIN marks ON headline = id "
           "WHERE service = ? AND time = ? AND sequence = ?"),
      moved(database,
            "SELECT service, time, sequence FROM headlines WHERE id = (SELECT headline FROM arrivals "
            "WHERE position > ? AND gone_service = ? AND gone_time = ? AND gone_sequence = ?)"),
      corrected(database,
                "SELECT 1 FROM versions WHERE headline = ?2 AND differs AND "
                "number = (SELECT max(number) FROM versions WHERE headline = ?2) AND "
                "EXISTS(SELECT 1 FROM arrivals WHERE position > ?1 AND headline = ?2)"),
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

std::optional<HeadlineKey> MarkBook::movedTo(const HeadlineKey& key, std::int64_t heard) {
    Query query(moved, heard, key.service, key.time, key.sequence);
    if (!query.next())
        return std::nullopt;
    return HeadlineKey{query.number(1), query.smallNumber(2),
                       static_cast<unsigned char>(query.smallNumber(0))};
}

bool MarkBook::wasCorrected(std::int64_t id, std::int64_t heard) {
    Query query(corrected, heard, id);
    return query.next();
}

bool MarkBook::change(const HeadlineKey& key, const MarkChange& change, std::int64_t now,
                      std::int64_t heard) {
    bool failed = false;
    std::optional<Known> known = look(key, failed);
    if (!known && !failed) {
        if (const std::optional<HeadlineKey> present = movedTo(key, heard))
            known = look(*present, failed);
    }
    if (!known)
        return !failed;
    ReadingMark mark = changedMark(known->mark, change, now);
    if (change.state == ReadingState::Read && wasCorrected(known->id, heard)) {
        mark.state = ReadingState::New;
        mark.wasRead = true;
    }
    if (mark == known->mark)
        return true;
    return Query(write, known->id, static_cast<int>(mark.state), int{mark.isStarred}, int{mark.wasRead},
                 mark.shown, mark.opened)
        .run();
}

}  // namespace wirepane
