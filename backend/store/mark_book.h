// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "host/contract/reading_marks.h"
#include "host/contract/records.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

// The marks of the news in an open store. News that no mark is known of is new, but for what was published
// before the store was made, or had marks: that counts as seen. Thread: that of the database, which must
// outlive this.
class MarkBook {
public:
    explicit MarkBook(Database& database);

    // Of news that is not there: as of new news.
    ReadingMark find(const HeadlineKey& key);
    // Leaves of these what may be new: what was published since marks are kept, or is marked so. One look at
    // the store, however many they are.
    void sift(std::vector<HeadlineKey>& keys);
    // Changes the mark as of the moment `now`, made by somebody who has heard of the arrivals up to `heard`:
    // news that has been sent again since then has the mark where it stands now, and is new again where it
    // was corrected: what was read is the version before. News that is not there is passed over. False on
    // failure, which the database then holds.
    bool change(const HeadlineKey& key, const MarkChange& change, std::int64_t now, std::int64_t heard);

private:
    struct Known {
        std::int64_t id = 0;
        ReadingMark mark;
    };
    std::optional<Known> look(const HeadlineKey& key, bool& failed);
    // The key that the news has now which had this one.
    std::optional<HeadlineKey> movedTo(const HeadlineKey& key, std::int64_t heard);
    bool wasCorrected(std::int64_t id, std::int64_t heard);
    bool noteRead(std::int64_t id, std::int64_t now);

    Statement read;
    Statement begin;
    Statement newBefore;
    Statement moved;
    Statement corrected;
    Statement write;
    Statement readBefore;
};

}  // namespace wirepane
