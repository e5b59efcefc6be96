// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/database.h"

#include "backend/search/search_tokenizer.h"
#include "backend/store/failure_sentence.h"
#include "backend/store/statement.h"

#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

int flagsOf(Database::Mode mode) {
    switch (mode) {
        case Database::Mode::Create:
            return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
        case Database::Mode::Write:
            return SQLITE_OPEN_READWRITE;
        case Database::Mode::Read:
            return SQLITE_OPEN_READONLY;
        case Database::Mode::Immutable:
            break;
    }
    return SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;
}

// An absolute path is never taken for an address or for one of SQLite's special names.
QByteArray nameOf(const QString& absolutePath, Database::Mode mode) {
    if (mode != Database::Mode::Immutable)
        return absolutePath.toUtf8();
    return "file:" + QUrl::toPercentEncoding(absolutePath, "/") + "?immutable=1";
}

}  // namespace

Result<std::unique_ptr<Database>> Database::open(const QString& path, Mode mode,
                                                 std::chrono::milliseconds busyTimeout) {
    if (path.isEmpty())
        return Error{u"No file is named for the news store."_s};
    const QString absolute = QFileInfo(path).absoluteFilePath();
    sqlite3* connection = nullptr;
    const int result = sqlite3_open_v2(nameOf(absolute, mode).constData(), &connection,
                                       flagsOf(mode) | SQLITE_OPEN_NOMUTEX, nullptr);
    if (connection == nullptr)
        return Error{u"%1 cannot be opened: there is no memory left."_s.arg(absolute)};
    std::unique_ptr<Database> database(new Database(absolute, connection));
    sqlite3_extended_result_codes(connection, 1);
    if (result != SQLITE_OK) {
        database->noteFailure();
        return Error{database->failure()};
    }
    database->setBusyTimeout(busyTimeout);
    // A store comes from outside as any file does: its schema may run nothing of its own.
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    // Where this fails, what uses the search index fails with the library's own sentence.
    registerSearchTokenizer(connection);
    return database;
}

Database::Database(QString path, sqlite3* opened) : filePath(std::move(path)), connection(opened) {}

Database::~Database() {
    sqlite3_close_v2(connection);
}

bool Database::execute(const char* sql) {
    if (sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) == SQLITE_OK)
        return true;
    noteFailure();
    return false;
}

bool Database::readNumber(const char* sql, std::int64_t& value) {
    Statement statement(*this, sql);
    Query query(statement);
    if (!query.next())
        return false;
    value = query.number(0);
    return true;
}

bool Database::readText(const char* sql, QString& value) {
    Statement statement(*this, sql);
    Query query(statement);
    if (!query.next())
        return false;
    value = query.text(0);
    return true;
}

bool Database::isReadOnly() const {
    return sqlite3_db_readonly(connection, "main") == 1;
}

bool Database::wasTakenAway() const {
    int moved = 0;
    return sqlite3_file_control(connection, "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK &&
           moved != 0;
}

bool Database::inTransaction() const {
    return sqlite3_get_autocommit(connection) == 0;
}

std::int64_t Database::lastInsertId() const {
    return sqlite3_last_insert_rowid(connection);
}

int Database::changes() const {
    return sqlite3_changes(connection);
}

void Database::setBusyTimeout(std::chrono::milliseconds timeout) {
    sqlite3_busy_timeout(connection, static_cast<int>(timeout.count()));
}

void Database::setCheckpointOnClose(bool on) {
    sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, on ? 0 : 1, nullptr);
}

void Database::noteFailure() {
    code = sqlite3_extended_errcode(connection);
    // The system's own error belongs to the code only where the system was asked.
    const int primary = code & 0xff;
    const bool fromSystem = primary == SQLITE_CANTOPEN || primary == SQLITE_IOERR;
    failureText = failureSentence(filePath, code, QString::fromUtf8(sqlite3_errmsg(connection)),
                                  fromSystem ? sqlite3_system_errno(connection) : 0);
}

}  // namespace wirepane
