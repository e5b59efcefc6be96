// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/news_writer.h"

#include "backend/packed_text.h"
#include "host/contract/clock.h"

namespace wirepane {

namespace {

std::optional<QByteArray> utf8Of(const std::optional<QString>& text) {
    return text ? std::optional(text->toUtf8()) : std::nullopt;
}

QByteArray packedStoryOf(const NewsItem& item, QByteArrayView utf8) {
    const bool isMade = item.story && item.packedStory.isOf(*item.story);
    return isMade ? item.packedStory.bytes : packedText(utf8);
}

}  // namespace

NewsWriter::NewsWriter(Database& owner, const ImportBlocks& importBlocks)
    : database(owner),
      blocks(importBlocks),
      versions(owner),
      findIdentity(owner,
                   "SELECT id, version, time, day, sequence, category, "
                   "EXISTS(SELECT 1 FROM stories WHERE headline = all_headlines.id AND text <> ''), "
                   "EXISTS(SELECT 1 FROM withdrawals WHERE headline = all_headlines.id) "
                   "FROM all_headlines WHERE service = ? AND identity = ?"),
      findKey(owner,
              "SELECT id, version, time, day, sequence, category, "
              "EXISTS(SELECT 1 FROM stories WHERE headline = headlines.id AND text <> ''), "
              "EXISTS(SELECT 1 FROM withdrawals WHERE headline = headlines.id) "
              "FROM headlines WHERE service = ? AND time = ? AND sequence = ?"),
      findNumber(
          owner,
          "SELECT 1 FROM all_headlines WHERE service = ?1 AND sequence = ?2 AND (day = ?3 OR time = ?4) "
          "AND id <> ?5"),
      insertHeadline(owner,
                     "INSERT INTO all_headlines(service, time, sequence, day, category, version, received, "
                     "identity, title) VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      updateHeadline(
          owner,
          "UPDATE all_headlines SET id = (SELECT max(id) + 1 FROM all_headlines), time = ?2, sequence = "
          "?3, day = ?4, category = ?5, version = ?6, "
          "received = ?7, title = ?8 WHERE id = ?1 RETURNING id"),
      deleteHeadline(owner, "DELETE FROM all_headlines WHERE id = ?"),
      insertText(owner, "INSERT INTO stories(headline, text) VALUES(?, ?)"),
      deleteText(owner, "DELETE FROM stories WHERE headline = ?"),
      readText(owner, "SELECT unpacked(text, headline) FROM stories WHERE headline = ?"),
      insertRelated(owner,
                    "INSERT INTO related_symbols(headline, position, market, code, service, time, sequence) "
                    "VALUES(?, ?, ?, ?, ?, ?, ?)"),
      deleteRelated(owner, "DELETE FROM related_symbols WHERE headline = ?"),
      readSearched(owner, "SELECT title, story FROM news_text WHERE id = ?"),
      searchIndex(owner) {}

bool NewsWriter::begin() {
    words.clear();
    return searchIndex.load();
}

std::optional<KnownNews> NewsWriter::find(unsigned char service, const QString& identity, bool& failed) {
    Query query(findIdentity, service, identity);
    return known(query, failed);
}

std::optional<KnownNews> NewsWriter::find(const HeadlineKey& key, bool& failed) {
    Query query(findKey, key.service, key.time, key.sequence);
    return known(query, failed);
}

std::optional<KnownNews> NewsWriter::known(Query& query, bool& failed) {
    const bool found = query.next();
    failed = query.failed();
    if (!found)
        return std::nullopt;
    return KnownNews{query.number(0),      query.smallNumber(1), query.number(2),      query.smallNumber(3),
                     query.smallNumber(4), query.smallNumber(5), query.number(6) != 0, query.number(7) != 0};
}

bool NewsWriter::isFree(const NewsItem& item, std::int32_t day, std::int32_t sequence, std::int64_t exceptId,
                        bool& failed) {
    Query query(findNumber, item.service, sequence, day, item.time, exceptId);
    const bool found = query.next();
    failed = query.failed();
    return !found && !failed;
}

bool NewsWriter::insert(const NewsItem& item, const NewsPlace& place) {
    if (!Query(insertHeadline, item.service, item.time, place.sequence, place.day, place.category,
               item.version, item.received.value_or(host_clock::now()), item.identity, item.title)
             .run())
        return false;
    written = database.lastInsertId();
    const std::optional<QByteArray> story = utf8Of(item.story);
    return (!story || writeStory(written, *story, packedStoryOf(item, *story))) &&
           index(written, item.title, story) && writeRelated(written, item, place) &&
           (!item.withdrawn || withdraw(written, item));
}

// The row gets an id that no row had before, so that an id stands for one service, time and number for good.
bool NewsWriter::replace(std::int64_t id, const NewsItem& item, const NewsPlace& place) {
    bool failed = false;
    const bool keepsStory = item.withdrawn && item.story.value_or(QString()).isEmpty();
    const std::optional<QByteArray> story = keepsStory ? storyOf(id, failed) : utf8Of(item.story);
    QString before;
    if (failed || !versions.keep(id, item.title, story) || !versions.restore(id) ||
        !takeFromSearch(id, before) || !Query(deleteText, id).run() || !Query(deleteRelated, id).run())
        return false;
    {
        Query query(updateHeadline, id, item.time, place.sequence, place.day, place.category, item.version,
                    item.received.value_or(host_clock::now()), item.title);
        if (!query.next())
            return false;
        written = query.number(0);
        if (query.next() || query.failed())
            return false;
    }
    const QByteArray packed = !story       ? QByteArray()
                              : keepsStory ? packedText(*story)
                                           : packedStoryOf(item, *story);
    return (!story || writeStory(written, *story, packed)) && index(written, item.title, story) &&
           writeRelated(written, item, place) && (!story || versions.settle(written)) &&
           (!item.withdrawn || withdraw(written, item));
}

bool NewsWriter::withdraw(std::int64_t id, const NewsItem& withdrawal) {
    return versions.withdraw(id, withdrawal.time, *withdrawal.withdrawn);
}

bool NewsWriter::remove(std::int64_t id) {
    QString title;
    return takeFromSearch(id, title) && Query(deleteHeadline, id).run();
}

bool NewsWriter::putStory(std::int64_t id, const QString& story) {
    QString title;
    const QByteArray text = story.toUtf8();
    return takeFromSearch(id, title) && versions.keep(id, title, QByteArrayView(text)) &&
           Query(deleteText, id).run() && writeStory(id, text, packedText(text)) && index(id, title, text) &&
           versions.settle(id);
}

bool NewsWriter::writeStory(std::int64_t id, const QByteArray& text, const QByteArray& packed) {
    return packed.isEmpty() ? Query(insertText, id, QByteArrayView(text)).run()
                            : Query(insertText, id, Blob{packed}).run();
}

// A row for the index is never selected from another table in the same statement: that would make the index
// write what it gathers, row by row. It is what the view news_text gives: the search sees no paragraph marks.
bool NewsWriter::index(std::int64_t id, const QString& title, const std::optional<QByteArray>& story) {
    if (blocks.isUnindexed(id))
        return true;
    QByteArray text = story.value_or(QByteArray());
    text.replace("@@@@", "\n");
    words.put(id, title.toUtf8(), text);
    return !words.isMuch() || finish();
}

std::optional<QByteArray> NewsWriter::storyOf(std::int64_t id, bool& failed) {
    Query query(readText, id);
    const bool isThere = query.next();
    failed = query.failed();
    return isThere ? std::optional(query.bytes(0).toByteArray()) : std::nullopt;
}

bool NewsWriter::takeFromSearch(std::int64_t id, QString& title) {
    QByteArray story;
    {
        Query query(readSearched, id);
        if (!query.next())
            return false;
        title = query.text(0);
        story = query.bytes(1).toByteArray();
    }
    if (!blocks.isUnindexed(id))
        words.take(id, title.toUtf8(), story);
    return true;
}

bool NewsWriter::writeRelated(std::int64_t id, const NewsItem& item, const NewsPlace& place) {
    int position = 0;
    for (const CSymbolInfo& symbol : item.related) {
        if (!Query(insertRelated, id, position++, symbol.market, symbol.code, item.service, item.time,
                   place.sequence)
                 .run())
            return false;
    }
    return true;
}

}  // namespace wirepane
