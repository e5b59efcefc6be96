// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/database_failure.h"

#include "backend/database/database_errors.h"

#include <QDir>

#include <cstring>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString reasonOf(const QString& message, int systemError) {
    if (systemError == 0)
        return message;
    return u"%1: %2"_s.arg(message, QString::fromLocal8Bit(std::strerror(systemError)));
}

}  // namespace

Error databaseFailure(const QString& path, int code, const QString& message, int systemError) {
    const QString file = QDir::toNativeSeparators(path);
    const QString reason = reasonOf(message, systemError);
    switch (code & 0xff) {
        case SQLITE_NOTADB:
            return makeError<database_errors::noDatabase>(file, reason);
        case SQLITE_CORRUPT:
            return makeError<database_errors::damaged>(file, reason);
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return makeError<database_errors::inUse>(file, reason);
        case SQLITE_READONLY:
        case SQLITE_PERM:
            return makeError<database_errors::notWritten>(file, reason);
        case SQLITE_CANTOPEN:
            return makeError<database_errors::notOpened>(file, reason);
        case SQLITE_FULL:
            return makeError<database_errors::diskFull>(file, reason);
        case SQLITE_IOERR:
            return makeError<database_errors::notReadOrWritten>(file, reason);
        default:
            return makeError<database_errors::notUsed>(file, reason);
    }
}

Error takenAwayError(const QString& path) {
    return makeError<database_errors::takenAway>(QDir::toNativeSeparators(path));
}

Error onlyReadError(const QString& path) {
    return makeError<database_errors::onlyRead>(QDir::toNativeSeparators(path));
}

}  // namespace wirepane
