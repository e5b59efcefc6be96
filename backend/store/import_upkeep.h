// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/store/category_book.h"
#include "backend/store/held_changes.h"
#include "backend/store/import_blocks.h"
#include "backend/store/index_writer.h"

#include <cstdint>
#include <optional>

namespace wirepane {

// What imports leave to be done: the search index of what they have brought, and, where one was killed or
// given up, taking away what it had brought so far. Done in short transactions, whoever has the time: nothing
// is lost between two of them. Thread: that of the database, which must outlive this.
class ImportUpkeep {
public:
    explicit ImportUpkeep(Database& database);

    // Each does one piece; true: more is left. Whoever clears holds the ImportLock. `isEnough` is asked after
    // each headline; what was gathered until then has yet to be written.
    using IsEnough = IndexWriter::IsEnough;
    Result<bool> clearSome();
    Result<bool> indexSome(const IsEnough& isEnough);

private:
    bool clear(std::int64_t from, std::int64_t last);

    Database& database;
    ImportBlocks blocks;
    CategoryBook categories;
    HeldChanges changes;
    IndexWriter index;
    Statement deleteStories;
    Statement deleteRelated;
    Statement deleteHeadlines;
};

// Whether there may be something to do, or the search index is to be made anew. False on failure, too.
bool needsUpkeep(Database& database);

// How many headlines that readers see are not in the search index yet (at most; a few may be gone). Nothing
// on failure, which the database then holds.
std::optional<std::int64_t> unindexedHeadlines(Database& database);

}  // namespace wirepane
