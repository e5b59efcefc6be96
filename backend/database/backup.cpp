// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/backup.h"

#include "backend/database/database.h"
#include "backend/database/database_errors.h"

#include <QDir>
#include <QFile>

#include <memory>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int pagesAtOnce = 1024;
constexpr std::chrono::milliseconds patience{5000};

Done copyPages(Database& from, Database& to,
               const std::function<void(std::int64_t, std::int64_t)>& progress) {
    std::int64_t pageSize = 0;
    std::int64_t objects = 0;
    // Others may write between two portions: what is copied is all of the moment of the first reading.
    if (!from.readNumber("PRAGMA page_size", pageSize) || !from.execute("BEGIN") ||
        !from.readNumber("SELECT count(*) FROM sqlite_schema", objects))
        return from.failure();
    sqlite3_backup* const backup = sqlite3_backup_init(to.handle(), "main", from.handle(), "main");
    int result = backup == nullptr ? SQLITE_ERROR : SQLITE_OK;
    while (result == SQLITE_OK) {
        result = sqlite3_backup_step(backup, pagesAtOnce);
        const std::int64_t total = sqlite3_backup_pagecount(backup);
        if (progress)
            progress((total - sqlite3_backup_remaining(backup)) * pageSize, total * pageSize);
    }
    const int finished = backup == nullptr ? result : sqlite3_backup_finish(backup);
    from.execute("COMMIT");
    if (result == SQLITE_DONE && finished == SQLITE_OK)
        return Nothing{};
    to.noteFailure();
    return to.failure();
}

}  // namespace

Done backUp(Database& source, const QString& target,
            const std::function<void(std::int64_t, std::int64_t)>& progress) {
    const Error taken = makeError<database_errors::backupExists>(QDir::toNativeSeparators(target));
    if (QFile::exists(target))
        return taken;
    const QString part = target + u".part"_s;
    QFile::remove(part);  // of a backup that was killed
    Result<std::unique_ptr<Database>> copy = Database::open(part, Database::Mode::Create, patience);
    if (!copy)
        return copy.error();
    const Done copied = copyPages(source, *copy.value(), progress);
    copy.value().reset();
    const bool isMoved = copied && QFile::rename(part, target);
    if (!isMoved)
        QFile::remove(part);
    return isMoved || !copied ? copied : Done(taken);
}

}  // namespace wirepane
