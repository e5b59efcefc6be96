// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/store/import_blocks.h"
#include "backend/store/index_writer.h"

#include <cstdint>
#include <optional>

namespace wirepane {

// Makes the search index of a store anew where earlier rules have made it. It is made beside the old one,
// which answers searches until the new one holds all that it holds; then one transaction puts it in its
// place, and the old one is taken away. All in short transactions: nothing is lost between two of them,
// whoever goes on. Thread: that of the database, which must outlive this.
class IndexRenewal {
public:
    explicit IndexRenewal(Database& database);

    // One piece; true: more is left. `isEnough` is asked after each headline; what was gathered until then
    // has yet to be written. Whoever calls it holds the ImportLock.
    Result<bool> renewSome(const IndexWriter::IsEnough& isEnough);

private:
    struct State {
        std::int64_t rules = 0;    // by which the new index is being made; 0: none is
        std::int64_t indexed = 0;  // the last id that it has
        std::int64_t last = 0;     // of the news
    };
    std::optional<State> readNow();
    bool begin();
    bool fill(const State& state, const IndexWriter::IsEnough& isEnough);
    bool putInPlace();
    bool takeAwaySome();

    Database& database;
    ImportBlocks blocks;
    IndexWriter index;
    Statement readState;
    Statement noteIndexed;
};

// Whether a renewal is to be done, or to be ended. False on failure, too.
bool needsRenewal(Database& database);

// How far the index is that will answer searches by the present rules: 0 to 99 in a hundred. Nothing: they
// are answered by them; or that cannot be read.
std::optional<int> renewalPercent(Database& database);

}  // namespace wirepane
