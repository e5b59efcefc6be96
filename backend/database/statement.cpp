// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/statement.h"

#include "backend/database/database.h"
#include "backend/database/gathered_numbers.h"

#include <cstddef>
#include <sqlite3.h>

namespace wirepane {

void Statement::Finaliser::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Statement::Statement(Database& database, const char* sql) : owner(database), text(sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(database.handle(), sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK)
        database.noteFailure();
    prepared.reset(statement);
}

Query::Query(Statement* statement) : source(*statement), running(statement->prepared.get()) {
    if (running != nullptr)
        return;
    // Preparing it again says why it cannot be run.
    broken = true;
    const Statement again(source.owner, source.text);
}

Query::~Query() {
    if (running == nullptr)
        return;
    sqlite3_reset(running);
    sqlite3_clear_bindings(running);
}

bool Query::next() {
    if (broken)
        return false;
    const int result = sqlite3_step(running);
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE) {
        broken = true;
        source.owner.noteFailure();
    }
    return false;
}

bool Query::run() {
    while (next()) {
    }
    return !broken;
}

std::int64_t Query::number(int column) const {
    return sqlite3_column_int64(running, column);
}

double Query::real(int column) const {
    return sqlite3_column_double(running, column);
}

QByteArrayView Query::bytes(int column) const {
    const auto* first = reinterpret_cast<const char*>(sqlite3_column_text(running, column));
    return {first, sqlite3_column_bytes(running, column)};
}

QByteArrayView Query::blob(int column) const {
    const auto* first = static_cast<const char*>(sqlite3_column_blob(running, column));
    return {first, sqlite3_column_bytes(running, column)};
}

std::span<const GatheredPair> Query::pairs(int column) const {
    const QByteArrayView bytes = blob(column);
    return {reinterpret_cast<const GatheredPair*>(bytes.data()),
            std::size_t(bytes.size()) / sizeof(GatheredPair)};
}

QString Query::text(int column) const {
    return QString::fromUtf8(bytes(column));
}

bool Query::isNull(int column) const {
    return sqlite3_column_type(running, column) == SQLITE_NULL;
}

void Query::bind(int index, const QString& value) {
    if (broken)
        return;
    const QByteArray bytes = value.toUtf8();
    if (sqlite3_bind_text64(running, index, bytes.constData(), static_cast<sqlite3_uint64>(bytes.size()),
                            SQLITE_TRANSIENT, SQLITE_UTF8) != SQLITE_OK) {
        broken = true;
        source.owner.noteFailure();
    }
}

void Query::bind(int index, QByteArrayView utf8) {
    if (broken)
        return;
    // Where there are no characters there may be no address either, which would be no text to SQLite.
    if (sqlite3_bind_text64(running, index, utf8.isEmpty() ? "" : utf8.data(),
                            static_cast<sqlite3_uint64>(utf8.size()), SQLITE_STATIC,
                            SQLITE_UTF8) != SQLITE_OK) {
        broken = true;
        source.owner.noteFailure();
    }
}

void Query::bind(int index, Blob blob) {
    if (!broken)
        sqlite3_bind_blob64(running, index, blob.bytes.data(), static_cast<sqlite3_uint64>(blob.bytes.size()),
                            SQLITE_STATIC);
}

void Query::bind(int index, const std::optional<QByteArrayView>& utf8) {
    if (utf8)
        bind(index, *utf8);
    else if (!broken)
        sqlite3_bind_null(running, index);
}

void Query::bind(int index, double value) {
    if (!broken)
        sqlite3_bind_double(running, index, value);
}

void Query::bindNumber(int index, std::int64_t value) {
    if (!broken)
        sqlite3_bind_int64(running, index, value);
}

}  // namespace wirepane
