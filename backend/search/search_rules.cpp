// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_rules.h"

#include "backend/database/statement.h"
#include "backend/words/character_folding.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr std::int64_t headlinesAtOnce = 2000;

// How many bytes the index gathers before it writes a segment, and how many segments of a size it lets stand
// before it merges them. 200,000 stories of 2 kB take 0.9 of the processor time that the library's own
// settings (1 MB and 4) take, and end up in 10 segments instead of 13.
constexpr const char* indexSettings =
    "INSERT INTO news_search(news_search, rank) VALUES('hashsize', 4194304);"
    "INSERT INTO news_search(news_search, rank) VALUES('automerge', 8)";

bool fillIndex(Database& database, const IndexProgress& progress) {
    std::int64_t last = 0;
    if (!database.readNumber("SELECT coalesce(max(id), 0) FROM all_headlines", last))
        return false;
    Statement fill(database,
                   "INSERT INTO news_search(rowid, title, story) SELECT id, title, story FROM news_text "
                   "WHERE id > ? AND id <= ? AND "
                   // What imports have brought and not indexed yet is still to come.
                   "coalesce((SELECT last < id FROM import_blocks WHERE first <= id "
                   "ORDER BY first DESC LIMIT 1), 1)");
    for (std::int64_t done = 0; done < last; done += headlinesAtOnce) {
        const std::int64_t end = std::min(done + headlinesAtOnce, last);
        if (!Query(fill, done, end).run())
            return false;
        if (progress)
            progress(end, last);
    }
    return true;
}

}  // namespace

bool hasPresentSearchRules(Database& database) {
    std::int64_t fingerprint = 0;
    return database.readNumber("SELECT fingerprint FROM search_rules", fingerprint) &&
           fingerprint == CharacterFolding::instance().fingerprint();
}

bool rebuildSearchIndex(Database& database, const IndexProgress& progress) {
    if (!database.execute(
            "DELETE FROM search_rules; INSERT INTO news_search(news_search) VALUES('delete-all')") ||
        !database.execute(indexSettings) || !fillIndex(database, progress))
        return false;
    Statement note(database, "INSERT INTO search_rules(fingerprint) VALUES(?)");
    return Query(note, CharacterFolding::instance().fingerprint()).run();
}

}  // namespace wirepane
