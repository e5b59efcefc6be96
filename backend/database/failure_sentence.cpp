// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/failure_sentence.h"

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

QString failureSentence(const QString& path, int code, const QString& message, int systemError) {
    const QString file = QDir::toNativeSeparators(path);
    const QString reason = reasonOf(message, systemError);
    switch (code & 0xff) {
        case SQLITE_NOTADB:
            return u"%1 is not a news store, or is damaged at its start (%2)."_s.arg(file, reason);
        case SQLITE_CORRUPT:
            return u"%1 is damaged (%2)."_s.arg(file, reason);
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return u"%1 is being used by another program (%2)."_s.arg(file, reason);
        case SQLITE_READONLY:
        case SQLITE_PERM:
            return u"%1 cannot be written to (%2)."_s.arg(file, reason);
        case SQLITE_CANTOPEN:
            return u"%1 cannot be opened (%2)."_s.arg(file, reason);
        case SQLITE_FULL:
            return u"%1 cannot grow: the disk is full (%2)."_s.arg(file, reason);
        case SQLITE_IOERR:
            return u"%1 cannot be read or written (%2)."_s.arg(file, reason);
        default:
            return u"%1 cannot be used (%2)."_s.arg(file, reason);
    }
}

QString takenAwaySentence(const QString& path) {
    return u"%1 was moved or deleted while it was open: no news is taken in until it is back or the "
           "program is started again."_s.arg(QDir::toNativeSeparators(path));
}

QString onlyReadSentence(const QString& path) {
    return u"%1 can only be read: no news is taken in."_s.arg(QDir::toNativeSeparators(path));
}

}  // namespace wirepane
