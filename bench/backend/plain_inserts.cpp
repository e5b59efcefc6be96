// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "bench/backend/plain_inserts.h"

#include <map>
#include <sqlite3.h>
#include <stdexcept>

namespace wirepane::bench {

namespace {

class Insert {
public:
    Insert(Database& store, const char* sql) : database(store) {
        if (sqlite3_prepare_v2(store.handle(), sql, -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(store.handle()));
    }
    ~Insert() { sqlite3_finalize(statement); }
    Insert(const Insert&) = delete;
    Insert& operator=(const Insert&) = delete;

    template <class... Values>
    void run(const Values&... values) {
        int index = 0;
        (bind(++index, values), ...);
        if (sqlite3_step(statement) != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(database.handle()));
        sqlite3_reset(statement);
    }

private:
    void bind(int index, std::int64_t value) { sqlite3_bind_int64(statement, index, value); }
    void bind(int index, const QByteArray& text) {
        sqlite3_bind_text(statement, index, text.constData(), static_cast<int>(text.size()), SQLITE_STATIC);
    }

    Database& database;
    sqlite3_stmt* statement = nullptr;
};

}  // namespace

PlainInserts::PlainInserts(const std::vector<NewsItem>& items) {
    std::map<unsigned char, int> numbers;
    for (const NewsItem& item : items) {
        QByteArray searched = item.story->toUtf8();
        searched.replace("@@@@", "\n");
        Row row{item.service,
                item.time,
                ++numbers[item.service],
                item.identity.toUtf8(),
                item.title.toUtf8(),
                item.story->toUtf8(),
                searched,
                {}};
        for (const CSymbolInfo& symbol : item.related)
            row.related.emplace_back(symbol.market, symbol.code.toUtf8());
        rows.push_back(std::move(row));
    }
}

void PlainInserts::run(Database& store) const {
    Insert headline(
        store,
        "INSERT INTO all_headlines(service, time, sequence, day, category, version, received, identity, "
        "title) VALUES(?, ?, ?, 20260302, 1, 0, 0, ?, ?)");
    Insert story(store, "INSERT INTO stories(headline, text) VALUES(?, ?)");
    Insert related(store,
                   "INSERT INTO related_symbols(headline, position, market, code, service, time, sequence) "
                   "VALUES(?, ?, ?, ?, ?, ?, ?)");
    Insert search(store, "INSERT INTO news_search(rowid, title, story) VALUES(?, ?, ?)");
    store.execute("BEGIN IMMEDIATE");
    for (const Row& row : rows) {
        headline.run(row.service, row.time, row.sequence, row.identity, row.title);
        const std::int64_t id = store.lastInsertId();
        story.run(id, row.story);
        int position = 0;
        for (const auto& [market, code] : row.related)
            related.run(id, position++, market, code, row.service, row.time, row.sequence);
        search.run(id, row.title, row.searched);
    }
    if (!store.execute("COMMIT"))
        throw std::runtime_error(sentence(store.failure()).toStdString());
}

}  // namespace wirepane::bench
