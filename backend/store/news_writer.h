// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/database/statement.h"
#include "backend/news_item.h"
#include "backend/store/gathered_words.h"
#include "backend/store/import_blocks.h"
#include "backend/store/index_writer.h"
#include "backend/store/version_book.h"
#include "host/contract/records.h"

#include <cstdint>
#include <optional>

namespace wirepane {

// What the store holds of a piece of news, as far as the next version of it asks.
struct KnownNews {
    std::int64_t id = 0;
    int version = 0;
    std::int64_t time = 0;
    std::int32_t day = 0;
    std::int32_t sequence = 0;
    std::int32_t category = 0;
    bool hasStory = false;  // one with text
    bool isWithdrawn = false;
};

// Where a piece of news is put.
struct NewsPlace {
    std::int32_t day = 0;  // the local day that its number belongs to, as yyyymmdd
    std::int32_t sequence = 0;
    std::int32_t category = 0;
};

// The rows of one piece of news: headline, story, earlier versions, withdrawal, related symbols and search
// index, always in step but for the ids of `blocks`, which the index does not hold yet; the index once a
// transaction is finished. Operations answer
// false on failure, which the database then holds.
class NewsWriter {
public:
    NewsWriter(Database& database, const ImportBlocks& blocks);

    // At the start of a transaction, and before its end.
    bool begin();
    bool finish() { return words.write(searchIndex); }
    // Nothing when the news is not there, or on failure (then `failed` is set).
    std::optional<KnownNews> find(unsigned char service, const QString& identity, bool& failed);
    // Of news that readers can see.
    std::optional<KnownNews> find(const HeadlineKey& key, bool& failed);
    // Whether no other piece of news than `exceptId` has this number on this day or at this time.
    bool isFree(const NewsItem& item, std::int32_t day, std::int32_t sequence, std::int64_t exceptId,
                bool& failed);

    bool insert(const NewsItem& item, const NewsPlace& place);
    // The news moves to a new id. A withdrawal that brings no story leaves the one that is there.
    bool replace(std::int64_t id, const NewsItem& item, const NewsPlace& place);
    // The news leaves, with its story, its related symbols and its words.
    bool remove(std::int64_t id);
    // The id of the news that was inserted or replaced last.
    std::int64_t writtenId() const { return written; }
    // Replaces the story, if there is one.
    bool putStory(std::int64_t id, const QString& story);
    // The news stays what it is, as one that is withdrawn.
    bool withdraw(std::int64_t id, const NewsItem& withdrawal);

private:
    static std::optional<KnownNews> known(Query& query, bool& failed);
    // `packed` is empty where the text is kept as it is.
    bool writeStory(std::int64_t id, const QByteArray& text, const QByteArray& packed);
    // Puts in what the index is to hold of the news.
    bool index(std::int64_t id, const QString& title, const std::optional<QByteArray>& story);
    std::optional<QByteArray> storyOf(std::int64_t id, bool& failed);
    bool writeRelated(std::int64_t id, const NewsItem& item, const NewsPlace& place);
    // Takes out what the index holds of a piece of news, if it does; `title` becomes the title that it had.
    bool takeFromSearch(std::int64_t id, QString& title);

    Database& database;
    const ImportBlocks& blocks;
    VersionBook versions;
    Statement findIdentity;
    Statement findKey;
    Statement findNumber;
    Statement insertHeadline;
    Statement updateHeadline;
    Statement deleteHeadline;
    Statement insertText;
    Statement deleteText;
    Statement readText;
    Statement insertRelated;
    Statement deleteRelated;
    Statement readSearched;
    IndexWriter searchIndex;
    GatheredWords words;
    std::int64_t written = 0;
};

}  // namespace wirepane
