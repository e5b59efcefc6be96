// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/index_writer.h"

#include <QByteArray>

#include <vector>

namespace wirepane {

namespace {

constexpr int readAtOnce = 32;  // headlines

struct Texts {
    std::int64_t id;
    QByteArray title;
    QByteArray story;
};

}  // namespace

IndexWriter::IndexWriter(Database& owner)
    : database(owner),
      readMade(owner, "SELECT indexed FROM index_renewal"),
      readTexts(owner,
                "SELECT id, title, story FROM news_text WHERE id >= ? AND id <= ? ORDER BY id LIMIT ?"),
      present(owner, "INSERT INTO news_search(rowid, title, story) VALUES(?, ?, ?)",
              "INSERT INTO news_search(news_search, rowid, title, story) VALUES('delete', ?, ?, ?)") {}

bool IndexWriter::load() {
    Query query(readMade);
    madeTo = query.next() ? query.number(0) : 0;
    return !query.failed();
}

IndexWriter::Index& IndexWriter::nextIndex() {
    if (!next)
        next.emplace(
            database, "INSERT INTO news_search_next(rowid, title, story) VALUES(?, ?, ?)",
            "INSERT INTO news_search_next(news_search_next, rowid, title, story) VALUES('delete', ?, ?, ?)");
    return *next;
}

bool IndexWriter::put(std::int64_t id, QByteArrayView title, QByteArrayView story) {
    return Query(present.insert, id, title, story).run() &&
           (id > madeTo || Query(nextIndex().insert, id, title, story).run());
}

bool IndexWriter::take(std::int64_t id, QByteArrayView title, QByteArrayView story) {
    return Query(present.remove, id, title, story).run() &&
           (id > madeTo || Query(nextIndex().remove, id, title, story).run());
}

bool IndexWriter::putAll(std::int64_t first, std::int64_t last, const IsEnough& isEnough,
                         std::int64_t& indexed) {
    const Put both = [this](std::int64_t id, QByteArrayView title, QByteArrayView story) {
        return put(id, title, story);
    };
    return putEach(first, last, both, isEnough, indexed);
}

bool IndexWriter::putAllIntoNext(std::int64_t first, std::int64_t last, const IsLeftOut& isLeftOut,
                                 const IsEnough& isEnough, std::int64_t& indexed) {
    const Put intoNext = [&](std::int64_t id, QByteArrayView title, QByteArrayView story) {
        return isLeftOut(id) || Query(nextIndex().insert, id, title, story).run();
    };
    return putEach(first, last, intoNext, isEnough, indexed);
}

// What is read is not read while it is written: that would make the index write row by row.
bool IndexWriter::putEach(std::int64_t first, std::int64_t last, const Put& putOne, const IsEnough& isEnough,
                          std::int64_t& indexed) {
    indexed = first - 1;
    for (bool isDone = false; indexed < last && !isDone;) {
        std::vector<Texts> texts;
        {
            Query query(readTexts, indexed + 1, last, readAtOnce);
            while (query.next())
                texts.push_back(
                    {query.number(0), query.bytes(1).toByteArray(), query.bytes(2).toByteArray()});
            if (query.failed())
                return false;
        }
        if (texts.empty())
            indexed = last;
        for (auto text = texts.begin(); text != texts.end() && !isDone; ++text) {
            if (!putOne(text->id, text->title, text->story))
                return false;
            indexed = text->id;
            isDone = isEnough();
        }
    }
    return true;
}

}  // namespace wirepane
