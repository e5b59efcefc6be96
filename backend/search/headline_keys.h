// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/search/id_set.h"
#include "backend/search/key_blocks.h"
#include "host/contract/records.h"

#include <map>
#include <optional>
#include <vector>

namespace wirepane {

// The keys of the headlines in memory, packed, so that a search that matches many rows reads none of them.
// The id of a headline stands for one key for good: what was replaced has another id. The keys of the newest
// ids are kept, about 6 bytes each; older ones are read from the store's index.
class HeadlineKeys {
public:
    explicit HeadlineKeys(Database& database, std::int64_t mostKeys = 16'000'000);

    // Reads what is new since the last call; the first call reads all. False on failure.
    bool catchUp();
    // The entries of a service whose ids are in the set, newest first. Few are looked up one by one, many are
    // taken from memory. Nothing on failure.
    std::optional<std::vector<CHeadlineTable>> entries(unsigned char service, const IdSet& ids);
    // The same, packed.
    std::optional<KeyBlocks> packed(unsigned char service, const IdSet& ids);
    // Whether the entries of such a set are looked up without the keys of all.
    bool areFew(const IdSet& ids) const;
    // How many are in memory.
    std::size_t size() const;

private:
    using Keys = std::map<unsigned char, std::vector<StoredKey>>;

    bool isLoaded() const { return hasLoaded; }
    // Reads the keys of ids beyond the oldest that is kept. In the order of an index that holds all of it.
    bool load();
    bool addNewer();
    bool passHidden();
    // Moves what was gathered into the blocks.
    void pack(Keys& gathered);
    std::vector<CHeadlineTable> lookUp(unsigned char service, const IdSet& ids);
    // The entries of ids that are not kept.
    void appendOlder(std::vector<CHeadlineTable>& found, unsigned char service, const IdSet& ids);

    Database& store;
    Statement all;
    Statement newer;
    Statement firstHidden;
    Statement ofService;
    Statement one;
    std::int64_t most;
    std::map<unsigned char, KeyBlocks> byService;
    std::int64_t oldestId = 0;  // the keys of later ids are kept
    std::int64_t lastId = 0;    // up to here nothing can come any more
    bool hasLoaded = false;
};

}  // namespace wirepane
