// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_file.h"

#include "backend/search/character_folding.h"
#include "backend/store/migrations.h"
#include "backend/store/schema.h"
#include "backend/store/store_defaults.h"
#include "backend/store/transaction.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

bool setUp(Database& database) {
    QString mode;
    return database.readText("PRAGMA journal_mode = WAL", mode) &&
           database.execute(
               "PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON; PRAGMA temp_store = MEMORY;"
               "PRAGMA cell_size_check = ON; PRAGMA cache_size = -16384; PRAGMA journal_size_limit = "
               "16777216");
}

bool bringUpToDate(Database& database, const IndexProgress& onIndexing) {
    std::int64_t version = 0;
    if (!database.readNumber("PRAGMA user_version", version))
        return false;
    if (version == storeVersion() && hasPresentSearchRules(database))
        return true;
    Transaction transaction(database);
    // Another program may have made the store meanwhile.
    if (!transaction.hasBegun() || !database.readNumber("PRAGMA user_version", version))
        return false;
    return migrate(database, storeMigrations()) && (version > 0 || addDefaults(database)) &&
           (hasPresentSearchRules(database) || rebuildSearchIndex(database, onIndexing)) &&
           transaction.commit();
}

}  // namespace

std::optional<Error> storeFault(Database& database) {
    std::int64_t version = 0;
    std::int64_t application = 0;
    std::int64_t objects = 0;
    if (!database.readNumber("PRAGMA user_version", version) ||
        !database.readNumber("PRAGMA application_id", application) ||
        !database.readNumber("SELECT count(*) FROM sqlite_schema", objects))
        return Error{database.failure()};
    if (objects == 0 && version == 0)
        return std::nullopt;
    if (application != storeApplicationId || version < 1)
        return Error{u"%1 is a database, but not a news store."_s.arg(database.path())};
    if (version > storeVersion())
        return Error{
            u"%1 was written by a newer version of the program (store version %2; this one reads up to %3)."_s
                .arg(database.path())
                .arg(version)
                .arg(storeVersion())};
    return std::nullopt;
}

Result<std::unique_ptr<Database>> openStore(const QString& path, const StoreOptions& options) {
    // Made before the file is: a kill in between would leave a store that is still empty.
    CharacterFolding::instance();
    Result<std::unique_ptr<Database>> opened =
        Database::open(path, Database::Mode::Create, options.busyTimeout);
    if (!opened)
        return opened;
    Database& database = *opened.value();
    // Until the file has proved usable, nothing may be written to it, not even what its log still holds.
    database.setCheckpointOnClose(false);
    if (std::optional<Error> fault = storeFault(database))
        return *fault;
    if (database.isReadOnly())
        return Error{u"%1 cannot be written to: the file or its folder is read-only."_s.arg(database.path())};
    if (!setUp(database) || !bringUpToDate(database, options.onIndexing))
        return Error{database.failure()};
    database.setCheckpointOnClose(true);
    return opened;
}

}  // namespace wirepane
