// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/search/id_set.h"

#include <QByteArray>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace wirepane {
class WordSplitter;

// Runs of ids, both ends included, whose news imports have brought, and not indexed yet.
class UnindexedIds {
public:
    // Those of this moment. They only become fewer, but for later ids. Nothing when they cannot be read.
    static std::optional<UnindexedIds> read(Database& database);
    bool contains(std::int64_t id) const;

private:
    std::map<std::int64_t, std::int64_t> runs;  // the last one, by the first
};

// Compares the search index with the news text, word by word, without writing anything: of each headline one
// number is kept, to which the words of its text are added and from which those of the index are taken. Both
// are read in pieces, between which others may write: what the news of an id is only changes by way of the
// log of arrivals. Thread: that of the database, which must outlive this.
class SearchIndexCheck {
public:
    // Of the ids from `first` to before `end`, 8 bytes each; those of which the index holds nothing yet are
    // left out.
    SearchIndexCheck(Database& database, std::int64_t first, std::int64_t end, UnindexedIds unindexed = {});
    ~SearchIndexCheck();
    SearchIndexCheck(const SearchIndexCheck&) = delete;
    SearchIndexCheck& operator=(const SearchIndexCheck&) = delete;

    // Adds the texts of these ids. False when they cannot be read, which the database then says.
    bool addTexts(std::int64_t first, std::int64_t end);
    // Takes the next words of the index, about that many places in texts. False when nothing is left of it;
    // nothing when it cannot be read.
    std::optional<bool> takeWords(std::int64_t most);
    // Places of words in the texts that were added; of the index, in those that were taken.
    std::int64_t wordsAdded() const { return added; }
    std::int64_t wordsTaken() const { return taken; }

    // When all is read: the ids of which the index does not hold exactly the text, ascending. Who has a text
    // is in the first list; the second are entries of the index without one, also of ids beyond the range.
    struct Faults {
        std::vector<std::int64_t> texts;
        std::vector<std::int64_t> entries;
    };
    Faults faults() const;

private:
    void takeWord(std::int64_t id, std::uint64_t value);

    Database& store;
    std::unique_ptr<WordSplitter> splitter;
    std::int64_t firstId;
    UnindexedIds leftOut;
    std::vector<std::uint64_t> sums;
    IdSet texts;
    std::set<std::int64_t> beyond;
    std::optional<QByteArray> lastTerm;
    std::int64_t added = 0;
    std::int64_t taken = 0;
};

}  // namespace wirepane
