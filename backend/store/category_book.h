// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/item_sink.h"

#include <QHash>
#include <QString>

#include <optional>

namespace wirepane {

// Writes categories and gives names their ids. Names are those of cleanCategoryName(), the services exist.
class CategoryBook {
public:
    explicit CategoryBook(Database& database);

    // Forgets what may have been taken back: at the start of every transaction.
    void restart() { ids.clear(); }
    // From now on a category that a name needs does not belong to the service yet, so that no reader sees it
    // there: showHeld() makes the links, dropHeld() forgets them and the categories that were made for them.
    // False on failure.
    void holdLinks(bool on) { isHolding = on; }
    bool showHeld();
    bool dropHeld();
    // The id of a name in a service; the category is made where it is missing. Nothing on failure.
    std::optional<std::int32_t> idOf(unsigned char service, const QString& name);
    // Takes a category in: new, renamed, coloured (an empty colour leaves the one that is there).
    Result<TakeOutcome> take(const CategoryItem& item);

private:
    struct Entry {
        QString name;
        QString colour;
    };
    std::optional<std::int32_t> makeCategory(int space, const QString& name);
    bool link(unsigned char service, std::int32_t id, int& changes);

    Database& database;
    Statement findName;
    Statement findId;
    Statement highest;
    Statement insert;
    Statement update;
    Statement insertLink;
    Statement holdLink;
    bool isHolding = false;
    QHash<std::pair<unsigned char, QString>, std::int32_t> ids;
};

}  // namespace wirepane
