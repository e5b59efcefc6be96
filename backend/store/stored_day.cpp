// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/stored_day.h"

#include "backend/store/day_bounds.h"
#include "backend/store/store_errors.h"
#include "backend/store/store_file.h"
#include "backend/store/store_reader.h"

using namespace Qt::StringLiterals;

namespace wirepane {

Result<std::unique_ptr<StoredDay>> StoredDay::open(const QString& storePath, QDate day) {
    auto opened = openStoreToRead(storePath);
    if (!opened)
        return opened.error();
    std::unique_ptr<StoredDay> stored(new StoredDay(std::move(opened.value())));
    if (!stored->load(day))
        return stored->database->failure();
    return stored;
}

StoredDay::StoredDay(std::unique_ptr<Database> opened)
    : database(std::move(opened)),
      oneItem(*database,
              "SELECT headlines.service, identity, version, time, sequence, title, "
              "coalesce(unpacked(text, headlines.id), CASE WHEN received < ?2 THEN '' END), "
              "(SELECT name FROM categories WHERE id = headlines.category AND "
              "space = CASE headlines.service WHEN 52 THEN 52 ELSE 0 END), reason "
              "FROM headlines LEFT JOIN stories ON stories.headline = headlines.id "
              "LEFT JOIN withdrawals ON withdrawals.headline = headlines.id WHERE headlines.id = ?1"),
      allRelated(*database, "SELECT market, code FROM related_symbols WHERE headline = ? ORDER BY position") {
}

bool StoredDay::load(QDate day) {
    Statement all(*database,
                  "SELECT time, id FROM headlines WHERE service IN (SELECT id FROM services) AND "
                  "time >= ? AND time < ? ORDER BY time, service, sequence");
    const DayBounds bounds = boundsOf(day);
    Query query(all, bounds.begin, bounds.end);
    while (query.next())
        entries.push_back({query.number(0), query.number(1)});
    return !query.failed();
}

Done StoredDay::copyCatalogues(Database& target) const {
    Statement attach(target, "ATTACH ? AS source");
    const bool attached = Query(attach, database->path()).run();
    if (attached && target.execute("BEGIN; DELETE FROM service_categories; DELETE FROM categories;"
                                   "REPLACE INTO services SELECT * FROM source.services WHERE position > 0;"
                                   "INSERT INTO categories SELECT * FROM source.categories;"
                                   "INSERT INTO service_categories SELECT * FROM source.service_categories;"
                                   "REPLACE INTO symbols SELECT * FROM source.symbols;"
                                   "REPLACE INTO quotes SELECT * FROM source.quotes; COMMIT"))
        return Nothing{};
    const Error error = target.failure();
    if (target.inTransaction())
        target.execute("ROLLBACK");
    return error;
}

Result<NewsItem> StoredDay::item(std::size_t index) {
    const std::int64_t id = entries[index].id;
    NewsItem item;
    {
        Query query(oneItem, id, awaitedSince());
        if (!query.next())
            return query.failed() ? database->failure() : makeError<store_errors::newsGone>();
        item.service = static_cast<unsigned char>(query.number(0));
        item.identity = query.text(1);
        item.version = query.smallNumber(2);
        item.time = query.number(3);
        item.sequence = query.smallNumber(4);
        item.title = query.text(5);
        if (query.isNull(6))
            item.story.reset();
        else
            item.story = query.text(6);
        item.category = query.text(7);
        if (!query.isNull(8))
            item.withdrawn = query.text(8);
    }
    for (Query query(allRelated, id); query.next();)
        item.related.push_back({static_cast<unsigned char>(query.number(0)), query.text(1)});
    if (database->damage())
        return *database->damage();
    return item;
}

}  // namespace wirepane
