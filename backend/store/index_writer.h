// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/database/statement.h"

#include <QByteArrayView>

#include <cstdint>
#include <functional>
#include <optional>

namespace wirepane {

// Writes texts into the search index, and takes them out; while another index is being made beside it
// (IndexRenewal), into that one as well, as far as it has come. Operations answer false on failure, which the
// database then holds. Thread: that of the database, which must outlive this.
class IndexWriter {
public:
    explicit IndexWriter(Database& database);

    // At the start of a transaction: how far the other index has come.
    bool load();
    // Texts are what the view news_text gives, in UTF-8; the index forgets one only when it is told the very
    // text that it knows.
    bool put(std::int64_t id, QByteArrayView title, QByteArrayView story);
    bool take(std::int64_t id, QByteArrayView title, QByteArrayView story);
    // Puts the texts of ids from `first` to `last`, in their order. `isEnough` is asked after each headline;
    // `indexed` is the last id of which nothing is left to be put.
    using IsEnough = std::function<bool()>;
    bool putAll(std::int64_t first, std::int64_t last, const IsEnough& isEnough, std::int64_t& indexed);
    // The same for the index that is being made, but for the ids that `isLeftOut` names.
    using IsLeftOut = std::function<bool(std::int64_t)>;
    bool putAllIntoNext(std::int64_t first, std::int64_t last, const IsLeftOut& isLeftOut,
                        const IsEnough& isEnough, std::int64_t& indexed);

private:
    struct Index {
        Index(Database& database, const char* inserting, const char* deleting)
            : insert(database, inserting), remove(database, deleting) {}
        Statement insert;
        Statement remove;
    };
    using Put = std::function<bool(std::int64_t id, QByteArrayView title, QByteArrayView story)>;
    bool putEach(std::int64_t first, std::int64_t last, const Put& putOne, const IsEnough& isEnough,
                 std::int64_t& indexed);
    Index& nextIndex();

    Database& database;
    Statement readMade;
    Statement readTexts;
    Index present;
    std::optional<Index> next;  // made when it is first needed: its table is not always there
    std::int64_t madeTo = 0;    // the last id that the other index has; 0: there is none
};

}  // namespace wirepane
