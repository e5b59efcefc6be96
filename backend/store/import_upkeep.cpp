// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/import_upkeep.h"

#include "backend/database/transaction.h"
#include "backend/store/index_renewal.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr std::int64_t clearAtOnce = 300;

}  // namespace

ImportUpkeep::ImportUpkeep(Database& owner)
    : database(owner),
      blocks(owner),
      categories(owner),
      changes(owner),
      index(owner),
      deleteStories(owner, "DELETE FROM stories WHERE headline BETWEEN ? AND ?"),
      deleteRelated(owner, "DELETE FROM related_symbols WHERE headline BETWEEN ? AND ?"),
      deleteHeadlines(owner, "DELETE FROM all_headlines WHERE id BETWEEN ? AND ?") {}

Result<bool> ImportUpkeep::indexSome(const IsEnough& isEnough) {
    Transaction transaction(database);
    if (!transaction.hasBegun() || !blocks.load() || !index.load())
        return database.failure();
    const auto shown = std::find_if(blocks.all().begin(), blocks.all().end(),
                                    [](const ImportBlock& block) { return !block.isHidden; });
    if (shown == blocks.all().end())
        return false;
    std::int64_t indexed = 0;
    if (!index.putAll(shown->first, shown->last, isEnough, indexed) ||
        !blocks.advance(shown->first, indexed) || !transaction.commit())
        return database.failure();
    return true;
}

Result<bool> ImportUpkeep::clearSome() {
    Transaction transaction(database);
    if (!transaction.hasBegun() || !blocks.load())
        return database.failure();
    const auto hidden = std::find_if(blocks.all().rbegin(), blocks.all().rend(),
                                     [](const ImportBlock& block) { return block.isHidden; });
    if (hidden != blocks.all().rend()) {
        const std::int64_t from = std::max(hidden->first, hidden->last - clearAtOnce + 1);
        if (!clear(from, hidden->last) || !blocks.shorten(hidden->first, from) || !transaction.commit())
            return database.failure();
        return true;
    }
    if (changes.dropSome())
        return transaction.commit() ? Result<bool>(true) : database.failure();
    // What only hidden news was in goes last.
    if (!database.execute(
            "DELETE FROM set_aside;"
            "DELETE FROM numbering WHERE service IN (SELECT id FROM services WHERE position = 0);"
            "DELETE FROM services WHERE position = 0") ||
        !categories.dropHeld() || !transaction.commit())
        return database.failure();
    return false;
}

bool ImportUpkeep::clear(std::int64_t from, std::int64_t last) {
    return Query(deleteStories, from, last).run() && Query(deleteRelated, from, last).run() &&
           Query(deleteHeadlines, from, last).run();
}

bool needsUpkeep(Database& database) {
    std::int64_t needed = 0;
    const bool isRead = database.readNumber(
        "SELECT EXISTS(SELECT 1 FROM import_blocks) OR EXISTS(SELECT 1 FROM held_links) OR "
        "EXISTS(SELECT 1 FROM held_changes) OR "
        "EXISTS(SELECT 1 FROM services WHERE position = 0)",
        needed);
    return (isRead && needed != 0) || needsRenewal(database);
}

std::optional<std::int64_t> unindexedHeadlines(Database& database) {
    std::int64_t count = 0;
    if (!database.readNumber("SELECT coalesce(sum(last - first + 1), 0) FROM import_blocks WHERE NOT hidden",
                             count))
        return std::nullopt;
    return count;
}

}  // namespace wirepane
