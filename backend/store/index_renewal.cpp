// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/index_renewal.h"

#include "backend/database/transaction.h"
#include "backend/search/search_rules.h"
#include "backend/words/character_folding.h"

#include <algorithm>
#include <sqlite3.h>

namespace wirepane {

namespace {

bool hasOldIndex(Database& database) {
    std::int64_t count = 0;
    return database.readNumber("SELECT count(*) FROM sqlite_schema WHERE name = 'news_search_old'", count) &&
           count > 0;
}

// While this lives the connection may write to the tables that an index consists of.
class OpenToInsides {
public:
    explicit OpenToInsides(Database& database) : owner(database) { setDefensive(0); }
    ~OpenToInsides() { setDefensive(1); }
    OpenToInsides(const OpenToInsides&) = delete;
    OpenToInsides& operator=(const OpenToInsides&) = delete;

private:
    void setDefensive(int on) { sqlite3_db_config(owner.handle(), SQLITE_DBCONFIG_DEFENSIVE, on, nullptr); }

    Database& owner;
};

bool isOutOfDate(Database& database) {
    return searchRulesOf(database) == SearchRules::Earlier;
}

}  // namespace

IndexRenewal::IndexRenewal(Database& owner)
    : database(owner),
      blocks(owner),
      index(owner),
      readState(owner,
                "SELECT coalesce((SELECT fingerprint FROM index_renewal), 0), "
                "coalesce((SELECT indexed FROM index_renewal), 0), "
                "(SELECT coalesce(max(id), 0) FROM all_headlines)"),
      noteIndexed(owner, "UPDATE index_renewal SET indexed = ?") {}

Result<bool> IndexRenewal::renewSome(const IndexWriter::IsEnough& isEnough) {
    if (!needsRenewal(database))
        return false;
    Transaction transaction(database);
    if (!transaction.hasBegun())
        return database.failure();
    // Another program may have gone on meanwhile.
    bool done = true;
    if (hasOldIndex(database)) {
        done = takeAwaySome();
    } else if (isOutOfDate(database)) {
        const std::optional<State> state = readNow();
        const bool isBegun = state && state->rules == CharacterFolding::instance().fingerprint();
        done = state && (isBegun ? fill(*state, isEnough) : begin());
    }
    if (!done || !transaction.commit())
        return database.failure();
    return needsRenewal(database);
}

std::optional<IndexRenewal::State> IndexRenewal::readNow() {
    Query query(readState);
    return query.next() ? std::optional(State{query.number(0), query.number(1), query.number(2)})
                        : std::nullopt;
}

// One that other rules have begun is of no use.
bool IndexRenewal::begin() {
    if (!database.execute("DROP TABLE IF EXISTS news_search_next; DELETE FROM index_renewal") ||
        !makeSearchIndex(database, "news_search_next"))
        return false;
    Statement note(database, "INSERT INTO index_renewal(fingerprint, indexed) VALUES(?, 0)");
    return Query(note, CharacterFolding::instance().fingerprint()).run();
}

// What imports have brought and not indexed yet comes into both indexes at once, by their own road. The last
// piece puts the index in place: until the next one more news might have come each time.
bool IndexRenewal::fill(const State& state, const IndexWriter::IsEnough& isEnough) {
    std::int64_t indexed = 0;
    if (!blocks.load() || !index.load())
        return false;
    const auto isLeftOut = [this](std::int64_t id) { return blocks.isUnindexed(id); };
    return index.putAllIntoNext(state.indexed + 1, state.last, isLeftOut, isEnough, indexed) &&
           (indexed < state.last ? Query(noteIndexed, indexed).run() : putInPlace());
}

bool IndexRenewal::putInPlace() {
    return database.execute(
               "ALTER TABLE news_search RENAME TO news_search_old;"
               "ALTER TABLE news_search_next RENAME TO news_search; DELETE FROM index_renewal") &&
           noteSearchRules(database);
}

// By its pages, since a table of some gigabytes is not dropped in a moment. The first rows tell what it is
// made of.
bool IndexRenewal::takeAwaySome() {
    const OpenToInsides open(database);
    std::int64_t left = 0;
    return database.execute(
               "DELETE FROM news_search_old_data WHERE id IN "
               "(SELECT id FROM news_search_old_data WHERE id > 10 LIMIT 500)") &&
           database.readNumber("SELECT EXISTS(SELECT 1 FROM news_search_old_data WHERE id > 10)", left) &&
           (left != 0 || database.execute("DROP TABLE news_search_old"));
}

bool needsRenewal(Database& database) {
    return isOutOfDate(database) || hasOldIndex(database);
}

std::optional<int> renewalPercent(Database& database) {
    std::int64_t percent = 0;
    if (!isOutOfDate(database) ||
        !database.readNumber("SELECT coalesce((SELECT indexed FROM index_renewal), 0) * 100 / "
                             "(SELECT coalesce(max(id), 0) + 1 FROM all_headlines)",
                             percent))
        return std::nullopt;
    return int(std::clamp<std::int64_t>(percent, 0, 99));
}

}  // namespace wirepane
