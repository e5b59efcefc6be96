// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/category_book.h"

#include "backend/database/database.h"
#include "backend/store/schema.h"
#include "backend/store/store_errors.h"

using namespace Qt::StringLiterals;

namespace wirepane {

CategoryBook::CategoryBook(Database& owner)
    : database(owner),
      findName(owner, "SELECT id FROM categories WHERE space = ? AND name = ?"),
      findId(owner, "SELECT name, colour FROM categories WHERE space = ? AND id = ?"),
      highest(owner, "SELECT coalesce(max(id), 0) FROM categories WHERE space = ?"),
      insert(owner, "INSERT INTO categories(space, id, name, colour) VALUES(?, ?, ?, ?)"),
      update(owner, "UPDATE categories SET name = ?3, colour = ?4 WHERE space = ?1 AND id = ?2"),
      insertLink(owner, "INSERT OR IGNORE INTO service_categories(service, category, space) VALUES(?, ?, ?)"),
      holdLink(owner,
               "INSERT OR IGNORE INTO held_links(service, category, space) SELECT ?1, ?2, ?3 WHERE NOT "
               "EXISTS(SELECT 1 FROM service_categories WHERE service = ?1 AND category = ?2)") {}

bool CategoryBook::showHeld() {
    return database.execute(
        "INSERT OR IGNORE INTO service_categories(service, category, space) "
        "SELECT service, category, space FROM held_links; DELETE FROM held_links");
}

bool CategoryBook::dropHeld() {
    return database.execute(
        "DELETE FROM categories WHERE (space, id) IN (SELECT space, category FROM held_links) AND NOT "
        "EXISTS(SELECT 1 FROM service_categories WHERE service_categories.space = categories.space AND "
        "category = id); DELETE FROM held_links");
}

std::optional<std::int32_t> CategoryBook::idOf(unsigned char service, const QString& name) {
    const auto known = ids.constFind({service, name});
    if (known != ids.constEnd())
        return *known;
    const int space = categorySpaceOf(service);
    std::optional<std::int32_t> id;
    {
        Query query(findName, space, name);
        if (query.next())
            id = query.smallNumber(0);
        else if (query.failed())
            return std::nullopt;
    }
    if (!id)
        id = makeCategory(space, name);
    int changes = 0;
    if (!id || !link(service, *id, changes))
        return std::nullopt;
    ids.insert({service, name}, *id);
    return id;
}

std::optional<std::int32_t> CategoryBook::makeCategory(int space, const QString& name) {
    std::int32_t id = 0;
    {
        Query query(highest, space);
        if (!query.next())
            return std::nullopt;
        id = query.smallNumber(0) + 1;
    }
    if (!Query(insert, space, id, name, QString()).run())
        return std::nullopt;
    return id;
}

bool CategoryBook::link(unsigned char service, std::int32_t id, int& changes) {
    if (isHolding)
        return Query(holdLink, service, id, categorySpaceOf(service)).run();
    if (!Query(insertLink, service, id, categorySpaceOf(service)).run())
        return false;
    changes += database.changes();
    return true;
}

Result<TakeOutcome> CategoryBook::take(const CategoryItem& item) {
    const int space = categorySpaceOf(item.service);
    {
        Query query(findName, space, item.name);
        if (query.next() && query.smallNumber(0) != item.id)
            return TakeOutcome{Take::Rejected,
                               makeError<store_errors::categoryHasId>(item.name, query.number(0), item.id)};
    }
    std::optional<Entry> before;
    {
        Query query(findId, space, item.id);
        if (query.next())
            before = Entry{query.text(0), query.text(1)};
        else if (query.failed())
            return database.failure();
    }
    const QString colour = before && item.colour.isEmpty() ? before->colour : item.colour;
    const bool same = before && before->name == item.name && before->colour == colour;
    int changes = same ? 0 : 1;
    if (!same && !Query(before ? update : insert, space, item.id, item.name, colour).run())
        return database.failure();
    if (!link(item.service, item.id, changes))
        return database.failure();
    ids.clear();
    return TakeOutcome{changes > 0 ? Take::TakenIn : Take::AlreadyThere, {}};
}

}  // namespace wirepane
