// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/search_rules.h"

#include "backend/search/character_folding.h"
#include "backend/store/statement.h"

namespace wirepane {

bool hasPresentSearchRules(Database& database) {
    std::int64_t fingerprint = 0;
    return database.readNumber("SELECT fingerprint FROM search_rules", fingerprint) &&
           fingerprint == CharacterFolding::instance().fingerprint();
}

bool rebuildSearchIndex(Database& database) {
    if (!database.execute("DELETE FROM search_rules; INSERT INTO news_search(news_search) VALUES('rebuild')"))
        return false;
    Statement note(database, "INSERT INTO search_rules(fingerprint) VALUES(?)");
    return Query(note, CharacterFolding::instance().fingerprint()).run();
}

}  // namespace wirepane
