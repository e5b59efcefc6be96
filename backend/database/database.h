// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

struct sqlite3;

namespace wirepane {

// A connection to one database file. Used by one thread at a time; statements must be gone before it.
//
// Failures: operations that can fail answer false, and failure() then says why.
class Database {
public:
    enum class Mode {
        Create,     // read and write; made when absent
        Write,      // read and write; must be there
        Read,       // read only; sees what other programs have committed
        Immutable,  // read only, for a folder where nothing may be made; nobody else may write meanwhile
    };

    // Nothing is read from the file yet: a file that is no database is found out by the first statement. A
    // file that is made is its owner's alone; SQLite gives what stands beside it the same rights.
    static Result<std::unique_ptr<Database>> open(const QString& path, Mode mode,
                                                  std::chrono::milliseconds busyTimeout);
    // Opens a file to read it, also where nothing may be made beside it.
    static Result<std::unique_ptr<Database>> openToRead(const QString& path,
                                                        std::chrono::milliseconds busyTimeout);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Runs one or several statements that give no rows.
    bool execute(const char* sql);
    // A transaction that writes. What met damage on the way is not kept: commit() fails then, as for any
    // other reason, and the transaction stays open, to be taken back.
    bool begin();
    bool commit();
    // The single number that `sql` gives; false, and `value` unchanged, on failure or without a row.
    bool readNumber(const char* sql, std::int64_t& value);
    bool readText(const char* sql, QString& value);

    bool isReadOnly() const;
    // True when the file does not stand under its name any more: what is written then goes with the last
    // program that has it open.
    bool wasTakenAway() const;
    bool inTransaction() const;
    std::int64_t lastInsertId() const;
    // Rows that the last statement changed.
    int changes() const;
    // How long statements wait from now on for another program that is writing. They look every millisecond,
    // so that one that writes much needs to leave others but short pauses.
    void setBusyTimeout(std::chrono::milliseconds timeout);
    // While off, closing leaves the file and its log exactly as they are.
    void setCheckpointOnClose(bool on);

    const QString& path() const { return filePath; }
    // The last failure, where there was one.
    const Error& failure() const { return lastFailure; }
    // Takes down what SQLite says about the failure that just happened.
    void noteFailure();
    // SQLite's result code of the last failure.
    int failureCode() const { return code; }
    // The first damage, or error of the medium, that any statement met; nothing: none did.
    // Who has read through this connection and finds it empty has read all that there was to read.
    const std::optional<Error>& damage() const { return firstDamage; }
    // How many statements met damage.
    int damages() const { return damageCount; }

    sqlite3* handle() const { return connection; }

private:
    Database(QString path, sqlite3* connection);

    static int waitForOthers(void* self, int tries);

    QString filePath;
    sqlite3* connection;
    std::chrono::milliseconds patience{0};
    std::chrono::steady_clock::time_point waitingSince;
    Error lastFailure;
    std::optional<Error> firstDamage;
    int damageCount = 0;
    int damagesAtBegin = 0;
    int code = 0;
};

}  // namespace wirepane
