// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/news_search.h"
#include "host/contract/search_condition.h"

#include <cstdint>
#include <optional>
#include <unordered_set>
#include <vector>

namespace wirepane {

// A search that goes on: each look gives what it finds and has not given before. What has been given is told
// by its key, not by when it came: news that is dated earlier, or that the index takes in later, is neither
// lost nor given twice. Thread: that of the database, which must outlive this.
class SearchFollowing {
public:
    SearchFollowing(Database& database, CSearch condition);

    // In these services. Oldest first; what is dated later than `latest` is given when that has come. Nothing
    // when the store cannot be read.
    std::optional<std::vector<CHeadlineTable>> look(const std::vector<unsigned char>& services,
                                                    std::int64_t latest);
    // Whether there may be something new since the last look.
    bool isDue(std::int64_t latest);

private:
    const CSearch wanted;
    NewsSearch search;
    DataVersion version;
    struct Hash {
        std::size_t operator()(const HeadlineKey& key) const noexcept;
    };
    std::unordered_set<HeadlineKey, Hash> given;
    std::optional<std::int64_t> nextLater;  // the earliest time of what was held back
};

}  // namespace wirepane
