// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/search/id_set.h"
#include "host/contract/records.h"

#include <map>
#include <vector>

namespace wirepane {

// The keys of all headlines in memory, 16 bytes each, so that a search that matches many rows reads none of
// them. The id of a headline stands for one key for good: what was replaced has another id.
class HeadlineKeys {
public:
    explicit HeadlineKeys(Database& database);

    bool isLoaded() const { return hasLoaded; }
    // Reads what is new since the last call; the first call reads all. False on failure.
    bool catchUp();
    // The entries of a service whose ids are in the set, newest first.
    std::vector<CHeadlineTable> entries(unsigned char service, const IdSet& ids) const;
    // The same without the keys in memory, one look-up for each id: for small sets.
    std::vector<CHeadlineTable> lookUp(unsigned char service, const IdSet& ids);

private:
    struct Key {
        std::int64_t time;
        std::int32_t sequence;
        std::uint32_t id;
    };
    using Keys = std::vector<Key>;  // oldest first

    static bool isOlder(const Key& a, const Key& b);
    static void merge(Keys& known, Keys& added);
    bool loadAll();
    bool passHidden();

    Statement all;
    Statement newer;
    Statement firstHidden;
    Statement one;
    std::map<unsigned char, Keys> byService;
    bool hasLoaded = false;
    std::int64_t lastId = 0;  // up to here nothing can come any more
};

}  // namespace wirepane
