// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <concepts>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

struct sqlite3_stmt;

namespace wirepane {
class Database;
struct GatheredPair;

// Bytes that are no text, as a value of a statement; not copied.
struct Blob {
    QByteArrayView bytes;
};

// A prepared statement, to be run any number of times through Query. One that SQLite refuses (a damaged
// schema) fails when it is run.
class Statement {
public:
    Statement(Database& database, const char* sql);

private:
    friend class Query;
    struct Finaliser {
        void operator()(sqlite3_stmt* statement) const;
    };

    Database& owner;
    std::unique_ptr<sqlite3_stmt, Finaliser> prepared;
    const char* text;
};

// One run of a statement, from its parameters to the end of the Query's life, which also ends the reading. A
// text is copied; one in UTF-8 is not, and outlives the Query.
class Query {
public:
    template <class... Values>
    explicit Query(Statement& statement, const Values&... values) : Query(&statement) {
        [[maybe_unused]] int index = 0;
        (bind(++index, values), ...);
    }
    ~Query();
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    // True: the next row is there. False: the end, or a failure, which the database then holds.
    bool next();
    bool failed() const { return broken; }
    // Runs to the end; false on failure.
    bool run();

    // Columns of the row, from 0 on. A null is 0 or an empty text.
    std::int64_t number(int column) const;
    double real(int column) const;
    std::int32_t smallNumber(int column) const { return static_cast<std::int32_t>(number(column)); }
    QString text(int column) const;
    // The text in UTF-8, valid until the next row.
    QByteArrayView bytes(int column) const;
    QByteArrayView blob(int column) const;  // valid until the next row
    // What gather() has made; valid until the next row.
    std::span<const GatheredPair> pairs(int column) const;
    bool isNull(int column) const;

private:
    explicit Query(Statement* statement);
    template <std::integral Number>
    void bind(int index, Number value) {
        bindNumber(index, static_cast<std::int64_t>(value));
    }
    void bind(int index, const QString& value);
    void bind(int index, QByteArrayView utf8);
    void bind(int index, Blob blob);
    // Nothing: null.
    void bind(int index, const std::optional<QByteArrayView>& utf8);
    void bind(int index, double value);
    void bindNumber(int index, std::int64_t value);

    Statement& source;
    sqlite3_stmt* running;
    bool broken = false;
};

}  // namespace wirepane
