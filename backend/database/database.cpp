// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/database.h"

#include "backend/database/database_errors.h"
#include "backend/database/database_failure.h"
#include "backend/database/gathered_numbers.h"
#include "backend/database/statement.h"
#include "backend/database/turn_bell.h"
#include "backend/database/unpacking.h"
#include "backend/words/search_tokenizer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>
#include <thread>

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

// An absolute path is never taken for a URI or for one of SQLite's special names.
QByteArray nameOf(const QString& absolutePath, Database::Mode mode) {
    if (mode != Database::Mode::Immutable)
        return absolutePath.toUtf8();
    return "file:" + QUrl::toPercentEncoding(absolutePath, "/") + "?immutable=1";
}

// Why no connection to this path can be a store; nothing speaks against it: nothing.
std::optional<Error> faultOfPath(const QString& path, const QString& absolutePath) {
    if (path.isEmpty())
        return makeError<database_errors::noFileNamed>();
    if (path == u":memory:"_s)
        return makeError<database_errors::memoryIsNoFile>();
    // SQLite takes a file of one byte for an empty one, and would write over it.
    if (QFileInfo(absolutePath).size() == 1)
        return makeError<database_errors::singleByte>(QDir::toNativeSeparators(absolutePath));
    return std::nullopt;
}

void makeForOwner(const QString& absolutePath) {
    // Where it is there, or cannot be made, opening it says what there is to say.
    QFile(absolutePath).open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
}

bool isDamage(int code) {
    const int primary = code & 0xff;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB || code == SQLITE_IOERR_READ ||
           code == SQLITE_IOERR_SHORT_READ || code == SQLITE_IOERR_DATA || code == SQLITE_IOERR_CORRUPTFS;
}

}  // namespace

Result<std::unique_ptr<Database>> Database::open(const QString& path, Mode mode,
                                                 std::chrono::milliseconds busyTimeout) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    if (const auto fault = faultOfPath(path, absolute))
        return *fault;
    if (mode == Mode::Create)
        makeForOwner(absolute);
    sqlite3* connection = nullptr;
    const int result = sqlite3_open_v2(nameOf(absolute, mode).constData(), &connection,
                                       flagsOf(mode) | SQLITE_OPEN_NOMUTEX, nullptr);
    if (connection == nullptr)
        return makeError<database_errors::noMemory>(absolute);
    std::unique_ptr<Database> database(new Database(absolute, connection));
    sqlite3_extended_result_codes(connection, 1);
    if (result != SQLITE_OK) {
        database->noteFailure();
        return database->failure();
    }
    database->setBusyTimeout(busyTimeout);
    // A store comes from outside as any file does: its schema may run nothing of its own.
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    // Where this fails, what uses the search index fails with the library's own sentence.
    registerSearchTokenizer(connection);
    registerGathering(connection);
    registerUnpacking(connection);
    database->execute("PRAGMA cell_size_check = ON");
    return database;
}

Result<std::unique_ptr<Database>> Database::openToRead(const QString& path,
                                                       std::chrono::milliseconds busyTimeout) {
    Result<std::unique_ptr<Database>> opened = open(path, Mode::Read, busyTimeout);
    std::int64_t version = 0;
    if (!opened || opened.value()->readNumber("PRAGMA user_version", version))
        return opened;
    const int primary = opened.value()->failureCode() & 0xff;
    if (primary != SQLITE_CANTOPEN && primary != SQLITE_READONLY)
        return opened;
    // Nothing may be made here that readers and writers could meet over: nobody writes, then, and there is no
    // more than the file itself.
    const QFileInfo log(opened.value()->path() + u"-wal"_s);
    if (log.size() > 0)
        return makeError<database_errors::logNeeded>(QDir::toNativeSeparators(opened.value()->path()),
                                                     log.fileName());
    return open(path, Mode::Immutable, busyTimeout);
}

Database::Database(QString path, sqlite3* opened)
    : filePath(std::move(path)),
      connection(opened),
      lastFailure(databaseFailure(filePath, SQLITE_OK, QString::fromUtf8(sqlite3_errstr(SQLITE_OK)), 0)) {}

Database::~Database() {
    sqlite3_close_v2(connection);
}

bool Database::execute(const char* sql) {
    if (sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) == SQLITE_OK)
        return true;
    noteFailure();
    return false;
}

bool Database::begin() {
    damagesAtBegin = damageCount;
    return execute("BEGIN IMMEDIATE");
}

bool Database::commit() {
    if (damageCount != damagesAtBegin) {
        lastFailure = *firstDamage;
        return false;
    }
    return execute("COMMIT");
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
    patience = timeout;
    sqlite3_busy_handler(connection, &Database::waitForOthers, this);
}

int Database::waitForOthers(void* self, int tries) {
    auto* const database = static_cast<Database*>(self);
    const auto now = std::chrono::steady_clock::now();
    if (tries == 0)
        database->waitingSince = now;
    if (now - database->waitingSince >= database->patience)
        return 0;
    ringForTurn(database->filePath);
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return 1;
}

void Database::setCheckpointOnClose(bool on) {
    sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, on ? 0 : 1, nullptr);
}

void Database::noteFailure() {
    code = sqlite3_extended_errcode(connection);
    // The system's own error belongs to the code only where the system was asked.
    const int primary = code & 0xff;
    const bool fromSystem = primary == SQLITE_CANTOPEN || primary == SQLITE_IOERR;
    lastFailure = databaseFailure(filePath, code, QString::fromUtf8(sqlite3_errmsg(connection)),
                                  fromSystem ? sqlite3_system_errno(connection) : 0);
    if (!isDamage(code))
        return;
    ++damageCount;
    if (!firstDamage)
        firstDamage = lastFailure;
}

}  // namespace wirepane
