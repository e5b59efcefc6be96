// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/import_upkeep.h"

#include "backend/database/transaction.h"

#include <algorithm>
#include <vector>

namespace wirepane {

namespace {

constexpr int readAtOnce = 32;  // headlines
constexpr std::int64_t clearAtOnce = 300;

struct Searched {
    std::int64_t id;
    QByteArray title;
    QByteArray story;
};

}  // namespace

ImportUpkeep::ImportUpkeep(Database& owner)
    : database(owner),
      blocks(owner),
      categories(owner),
      readTexts(owner,
                "SELECT id, title, story FROM news_text WHERE id >= ? AND id <= ? ORDER BY id LIMIT ?"),
      insertSearched(owner, "INSERT INTO news_search(rowid, title, story) VALUES(?, ?, ?)"),
      deleteStories(owner, "DELETE FROM stories WHERE headline BETWEEN ? AND ?"),
      deleteRelated(owner, "DELETE FROM related_symbols WHERE headline BETWEEN ? AND ?"),
      deleteHeadlines(owner, "DELETE FROM all_headlines WHERE id BETWEEN ? AND ?") {}

Result<bool> ImportUpkeep::indexSome(const IsEnough& isEnough) {
    Transaction transaction(database);
    if (!transaction.hasBegun() || !blocks.load())
        return database.failure();
    const auto shown = std::find_if(blocks.all().begin(), blocks.all().end(),
                                    [](const ImportBlock& block) { return !block.isHidden; });
    if (shown == blocks.all().end())
        return false;
    std::int64_t indexed = 0;
    if (!index(*shown, isEnough, indexed) || !blocks.advance(shown->first, indexed) || !transaction.commit())
        return database.failure();
    return true;
}

// What is read is not read while it is written: that would make the index write row by row.
bool ImportUpkeep::index(const ImportBlock& block, const IsEnough& isEnough, std::int64_t& indexed) {
    indexed = block.first - 1;
    for (bool isDone = false; indexed < block.last && !isDone;) {
        std::vector<Searched> texts;
        {
            Query query(readTexts, indexed + 1, block.last, readAtOnce);
            while (query.next())
                texts.push_back(
                    {query.number(0), query.bytes(1).toByteArray(), query.bytes(2).toByteArray()});
            if (query.failed())
                return false;
        }
        if (texts.empty())
            indexed = block.last;
        for (auto text = texts.begin(); text != texts.end() && !isDone; ++text) {
            if (!Query(insertSearched, text->id, QByteArrayView(text->title), QByteArrayView(text->story))
                     .run())
                return false;
            indexed = text->id;
            isDone = isEnough();
        }
    }
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
    return database.readNumber(
               "SELECT EXISTS(SELECT 1 FROM import_blocks) OR EXISTS(SELECT 1 FROM held_links) OR "
               "EXISTS(SELECT 1 FROM services WHERE position = 0)",
               needed) &&
           needed != 0;
}

std::optional<std::int64_t> unindexedHeadlines(Database& database) {
    std::int64_t count = 0;
    if (!database.readNumber("SELECT coalesce(sum(last - first + 1), 0) FROM import_blocks WHERE NOT hidden",
                             count))
        return std::nullopt;
    return count;
}

}  // namespace wirepane
