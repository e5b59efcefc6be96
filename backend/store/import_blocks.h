// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

// A run of headline ids that imports have taken, both ends included.
struct ImportBlock {
    std::int64_t first = 0;
    std::int64_t last = 0;
    bool isHidden = false;  // of an import that is not done: readers do not see it. Else it is shown, and not
                            // in the search index yet
};

// The blocks of a store, as one transaction sees them. Operations answer false on failure, which the database
// then holds. Thread: that of the database, which must outlive this.
class ImportBlocks {
public:
    explicit ImportBlocks(Database& database);

    // At the start of a transaction: reads them.
    bool load();
    // Whatever gets an id in this transaction is hidden, until keepNew().
    bool hideNew();
    // Writes down which ids those were.
    bool keepNew();
    // Shows what is hidden.
    bool show();
    // The block that begins with `first` loses its ids up to `indexed`, or those from `from` on; it goes when
    // nothing is left of it.
    bool advance(std::int64_t first, std::int64_t indexed);
    bool shorten(std::int64_t first, std::int64_t from);

    bool isHidden(std::int64_t id) const;
    // Hidden or not: the search index does not hold it.
    bool isUnindexed(std::int64_t id) const { return find(id) != nullptr; }
    const std::vector<ImportBlock>& all() const { return blocks; }

private:
    const ImportBlock* find(std::int64_t id) const;
    std::optional<std::int64_t> newestId();
    bool replace(std::int64_t first, std::int64_t newFirst, std::int64_t newLast);
    bool write(const ImportBlock& block);

    Statement read;
    Statement newest;
    Statement put;
    Statement remove;
    Statement showAll;
    std::vector<ImportBlock> blocks;  // ascending
};

}  // namespace wirepane
