// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <map>
#include <optional>

namespace wirepane {
class IndexWriter;

// What a transaction changes of the search index, so that it is written in ascending order of ids: whenever
// an id is below the one before, the index writes a segment of all that it has gathered, and to merge many
// small ones takes longer than all the rest.
class GatheredWords {
public:
    // Texts as of IndexWriter. What is taken is what the index holds, or what was put.
    void put(std::int64_t id, const QByteArray& title, const QByteArray& story);
    void take(std::int64_t id, const QByteArray& title, const QByteArray& story);

    // Their texts are so many that they should be written before there are more.
    bool isMuch() const;
    // Writes all, and forgets it; false on failure.
    bool write(IndexWriter& index);
    void clear();

private:
    struct Texts {
        QByteArray title;
        QByteArray story;
    };
    struct Change {
        std::optional<Texts> taken;
        std::optional<Texts> put;
    };

    std::map<std::int64_t, Change> changes;
    qsizetype bytes = 0;
};

}  // namespace wirepane
