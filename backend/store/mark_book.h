// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "host/contract/reading_marks.h"
#include "host/contract/records.h"

#include <cstdint>
#include <optional>

namespace wirepane {

// The marks of the news in an open store. News that no mark is known of is new, but for what was published
// before the store was made, or had marks: that counts as seen. Thread: that of the database, which must
// outlive this.
class MarkBook {
public:
    explicit MarkBook(Database& database);

    // Of news that is not there: as of new news.
    ReadingMark find(const HeadlineKey& key);
    // Changes the mark as of the moment `now`; news that is not there is passed over. False on failure, which
    // the database then holds.
    bool change(const HeadlineKey& key, const MarkChange& change, std::int64_t now);

private:
    struct Known {
        std::int64_t id = 0;
        ReadingMark mark;
    };
    std::optional<Known> look(const HeadlineKey& key, bool& failed);

    Statement read;
    Statement write;
};

}  // namespace wirepane
