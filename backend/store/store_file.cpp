// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_file.h"

#include "backend/database/migrations.h"
#include "backend/database/statement.h"
#include "backend/database/transaction.h"
#include "backend/store/schema.h"
#include "backend/store/store_defaults.h"
#include "backend/store/store_errors.h"
#include "backend/words/character_folding.h"

#include <QDir>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// What a file says of itself.
struct StoreMark {
    std::int64_t version = 0;
    std::int64_t application = 0;
    std::int64_t objects = 0;

    bool isEmpty() const { return objects == 0 && version == 0; }
};

// All of one moment, since another program may be making the store. Nothing on failure, which the database
// then holds.
std::optional<StoreMark> markOf(Database& database) {
    Statement statement(database,
                        "SELECT (SELECT user_version FROM pragma_user_version),"
                        "(SELECT application_id FROM pragma_application_id),"
                        "(SELECT count(*) FROM sqlite_schema)");
    Query query(statement);
    if (!query.next())
        return std::nullopt;
    return StoreMark{query.number(0), query.number(1), query.number(2)};
}

bool isBusy(const Database& database) {
    return (database.failureCode() & 0xff) == SQLITE_BUSY;
}

// Programs that start together on a new store all want this at once. Who comes second is refused without any
// waiting, and so waits here until the other has done it.
bool useLog(Database& database) {
    constexpr int mostTries = 100;
    QString mode;
    for (int i = 0; i < mostTries; ++i) {
        if (database.readText("PRAGMA journal_mode = WAL", mode))
            return true;
        if (!isBusy(database) || !database.begin() || !database.execute("ROLLBACK"))
            return false;
    }
    return false;
}

bool setUp(Database& database) {
    return useLog(database) &&
           database.execute(
               "PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON; PRAGMA temp_store = MEMORY;"
               "PRAGMA cache_size = -16384; PRAGMA journal_size_limit = "
               "16777216");
}

bool bringUpToDate(Database& database, const IndexProgress& onIndexing) {
    std::int64_t version = 0;
    if (!database.readNumber("PRAGMA user_version", version))
        return false;
    // What earlier rules have made is made anew while it is in use (IndexRenewal).
    if (version == storeVersion() && searchRulesOf(database) != SearchRules::Unknown)
        return true;
    // A damaged store is not mended by writing to it.
    if (database.damage())
        return false;
    Transaction transaction(database);
    // Another program may have made the store meanwhile.
    if (!transaction.hasBegun() || !database.readNumber("PRAGMA user_version", version))
        return false;
    return migrate(database, storeMigrations()) && (version > 0 || addDefaults(database)) &&
           (searchRulesOf(database) != SearchRules::Unknown || rebuildSearchIndex(database, onIndexing)) &&
           transaction.commit();
}

std::optional<Error> faultOf(const StoreMark& mark, const Database& database) {
    if (mark.isEmpty())
        return std::nullopt;
    if (mark.application != storeApplicationId || mark.version < 1)
        return makeError<store_errors::otherDatabase>(database.path());
    if (mark.version > storeVersion())
        return makeError<store_errors::newerVersion>(database.path(), mark.version, storeVersion());
    return std::nullopt;
}

Error emptyError(const Database& database) {
    return makeError<store_errors::empty>(QDir::toNativeSeparators(database.path()));
}

Error notWritableError(const Database& database) {
    return makeError<store_errors::notWritable>(QDir::toNativeSeparators(database.path()));
}

Result<std::unique_ptr<Database>> openToWrite(const QString& path, Database::Mode mode,
                                              const StoreOptions& options) {
    // Made before the file is: a kill in between would leave a store that is still empty.
    CharacterFolding::instance();
    Result<std::unique_ptr<Database>> opened = Database::open(path, mode, options.busyTimeout);
    if (!opened)
        return opened;
    Database& database = *opened.value();
    // Until the file has proved usable, nothing may be written to it, not even what its log still holds.
    database.setCheckpointOnClose(false);
    const std::optional<StoreMark> mark = markOf(database);
    if (!mark) {
        // The file is open: what cannot be opened is what would stand beside it.
        const bool isShutFolder = (database.failureCode() & 0xff) == SQLITE_CANTOPEN;
        return isShutFolder ? notWritableError(database) : database.failure();
    }
    if (std::optional<Error> fault = faultOf(*mark, database))
        return *fault;
    if (mode == Database::Mode::Write && mark->isEmpty())
        return emptyError(database);
    if (database.isReadOnly())
        return notWritableError(database);
    if (!setUp(database) || !bringUpToDate(database, options.onIndexing))
        return database.failure();
    database.setCheckpointOnClose(true);
    return opened;
}

}  // namespace

std::optional<Error> readingFault(Database& database) {
    const std::optional<StoreMark> mark = markOf(database);
    if (!mark)
        return database.failure();
    if (std::optional<Error> fault = faultOf(*mark, database))
        return fault;
    if (mark->isEmpty())
        return emptyError(database);
    if (mark->version < storeVersion())
        return makeError<store_errors::olderVersion>(database.path(), mark->version, storeVersion());
    return std::nullopt;
}

Result<std::unique_ptr<Database>> openStore(const QString& path, const StoreOptions& options) {
    return openToWrite(path, Database::Mode::Create, options);
}

Result<std::unique_ptr<Database>> openStoreToRead(const QString& path, const StoreOptions& options) {
    Result<std::unique_ptr<Database>> writable = openToWrite(path, Database::Mode::Write, options);
    if (writable)
        return writable;
    Result<std::unique_ptr<Database>> opened = Database::openToRead(path, options.busyTimeout);
    if (!opened)
        return opened;
    Database& database = *opened.value();
    if (std::optional<Error> fault = readingFault(database))
        return *fault;
    // What cannot be written to cannot be indexed anew either.
    if (!database.execute("PRAGMA temp_store = MEMORY") || searchRulesOf(database) == SearchRules::Unknown)
        return writable;
    return opened;
}

Result<StoreConnections> withReader(Result<std::unique_ptr<Database>> store) {
    if (!store)
        return store.error();
    Result<std::unique_ptr<Database>> reader =
        Database::openToRead(store.value()->path(), StoreOptions().busyTimeout);
    if (!reader)
        return reader.error();
    reader.value()->execute("PRAGMA temp_store = MEMORY");
    return StoreConnections{std::move(store.value()), std::move(reader.value())};
}

}  // namespace wirepane
