// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/mark_book.h"

#include <algorithm>
#include <tuple>

namespace wirepane {

namespace {

// Of a row of service, time and sequence.
HeadlineKey keyIn(const Query& query) {
    return {query.number(1), query.smallNumber(2), static_cast<unsigned char>(query.smallNumber(0))};
}

}  // namespace

MarkBook::MarkBook(Database& database)
    : read(database,
           "SELECT id, coalesce(state, time <= (SELECT moment FROM marks_begin)), starred, was_read, "
           "shown, opened FROM headlines LEFT JOIN marks ON headline = id "
           "WHERE service = ? AND time = ? AND sequence = ?"),
      begin(database, "SELECT moment FROM marks_begin"),
      newBefore(database,
                "SELECT service, time, sequence FROM marks JOIN headlines ON id = headline "
                "WHERE state = 0 AND time <= ?"),
      moved(database,
            "SELECT service, time, sequence FROM headlines WHERE id = (SELECT headline FROM arrivals "
            "WHERE position > ? AND gone_service = ? AND gone_time = ? AND gone_sequence = ?)"),
      corrected(database,
                "SELECT 1 FROM versions WHERE headline = ?2 AND differs AND "
                "number = (SELECT max(number) FROM versions WHERE headline = ?2) AND "
                "EXISTS(SELECT 1 FROM arrivals WHERE position > ?1 AND headline = ?2)"),
      write(database,
            "REPLACE INTO marks(headline, state, starred, was_read, shown, opened) "
            "VALUES(?, ?, ?, ?, ?, ?)"),
      readBefore(database,
                 "UPDATE versions SET opened = ?2, shown = iif(shown = 0, ?2, shown) WHERE headline = ?1 AND "
                 "opened = 0 AND number = (SELECT max(number) FROM versions WHERE headline = ?1)") {}

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

void MarkBook::sift(std::vector<HeadlineKey>& keys) {
    Query moment(begin);
    if (!moment.next())
        return;
    const std::int64_t first = moment.number(0);
    const auto isBefore = [&](const HeadlineKey& key) { return key.time <= first; };
    if (std::ranges::none_of(keys, isBefore))
        return;
    std::vector<HeadlineKey> marked;
    Query query(newBefore, first);
    while (query.next())
        marked.push_back(keyIn(query));
    if (query.failed())
        return;
    constexpr auto inOrder = [](const HeadlineKey& a, const HeadlineKey& b) {
        return std::tie(a.time, a.sequence, a.service) < std::tie(b.time, b.sequence, b.service);
    };
    std::ranges::sort(marked, inOrder);
    std::erase_if(keys, [&](const HeadlineKey& key) {
        return isBefore(key) && !std::ranges::binary_search(marked, key, inOrder);
    });
}

std::optional<HeadlineKey> MarkBook::movedTo(const HeadlineKey& key, std::int64_t heard) {
    Query query(moved, heard, key.service, key.time, key.sequence);
    if (!query.next())
        return std::nullopt;
    return keyIn(query);
}

bool MarkBook::wasCorrected(std::int64_t id, std::int64_t heard) {
    Query query(corrected, heard, id);
    return query.next();
}

bool MarkBook::noteRead(std::int64_t id, std::int64_t now) {
    return Query(readBefore, id, now).run();
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
        mark = known->mark;
        mark.isStarred = change.isStarred.value_or(mark.isStarred);
        mark.state = ReadingState::New;
        mark.wasRead = true;
        if (!noteRead(known->id, now))
            return false;
    }
    if (mark == known->mark)
        return true;
    return Query(write, known->id, static_cast<int>(mark.state), int{mark.isStarred}, int{mark.wasRead},
                 mark.shown, mark.opened)
        .run();
}

}  // namespace wirepane
