// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/held_changes.h"

#include "backend/database/database.h"
#include "backend/store/store_errors.h"
#include "backend/store/store_writer.h"
#include "backend/store/stored_item.h"

#include <sqlite3.h>

namespace wirepane {

namespace {

constexpr int dropAtOnce = 300;

}  // namespace

HeldChanges::HeldChanges(Database& owner)
    : database(owner),
      write(owner, "INSERT INTO held_changes(item) VALUES(?)"),
      readDue(owner, "SELECT position, item FROM held_changes WHERE position <= ? ORDER BY position"),
      readLast(owner, "SELECT last FROM due_changes"),
      remove(owner, "DELETE FROM held_changes WHERE position <= ?"),
      drop(owner,
           "DELETE FROM held_changes WHERE position IN (SELECT position FROM held_changes "
           "WHERE position > coalesce((SELECT last FROM due_changes), 0) LIMIT ?)") {}

bool HeldChanges::add(const StoreItem& item) {
    return Query(write, Blob{bytesOf(item)}).run();
}

bool HeldChanges::makeDue() {
    return database.execute(
        "DELETE FROM due_changes;"
        "INSERT INTO due_changes(last) SELECT position FROM held_changes ORDER BY position DESC LIMIT 1");
}

bool HeldChanges::dropSome() {
    return Query(drop, dropAtOnce).run() && sqlite3_changes(database.handle()) > 0;
}

Result<bool> HeldChanges::makeSome(StoreWriter& writer, const std::function<bool()>& isEnough,
                                   std::vector<TakeOutcome>& outcomes) {
    std::int64_t last = 0;
    {
        Query query(readLast);
        if (!query.next())
            return query.failed() ? Result<bool>(database.failure()) : false;
        last = query.number(0);
    }
    const std::size_t before = outcomes.size();
    const auto fail = [&](const Error& error) {
        writer.rollback();
        outcomes.resize(before);
        return error;
    };
    if (Done begun = writer.begin(); !begun)
        return begun.error();
    const Result<std::int64_t> made = takeDue(writer, last, isEnough, outcomes);
    if (!made)
        return fail(made.error());
    const bool isAll = made.value() >= last;
    if (!Query(remove, made.value()).run() || (isAll && !database.execute("DELETE FROM due_changes")))
        return fail(database.failure());
    if (Done kept = writer.commit(); !kept)
        return fail(kept.error());
    return !isAll;
}

// How far it has come.
Result<std::int64_t> HeldChanges::takeDue(StoreWriter& writer, std::int64_t last,
                                          const std::function<bool()>& isEnough,
                                          std::vector<TakeOutcome>& outcomes) {
    Query query(readDue, last);
    while (query.next()) {
        const std::optional<StoreItem> item = itemOf(query.blob(1).toByteArray());
        if (!item) {
            outcomes.push_back({Take::Rejected, makeError<store_errors::changeUnreadable>(query.number(0))});
        } else {
            Result<TakeOutcome> outcome = writer.take(*item);
            if (!outcome)
                return outcome.error();
            outcomes.push_back(std::move(outcome.value()));
        }
        if (isEnough())
            return query.number(0);
    }
    if (query.failed())
        return database.failure();
    return last;
}

std::optional<std::int64_t> dueChanges(Database& database) {
    std::int64_t count = 0;
    if (!database.readNumber(
            "SELECT count(*) FROM held_changes WHERE position <= (SELECT last FROM due_changes)", count))
        return std::nullopt;
    return count;
}

}  // namespace wirepane
