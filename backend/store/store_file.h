// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "backend/search/search_rules.h"

#include <chrono>
#include <optional>

namespace wirepane {

struct StoreOptions {
    // How long to wait for another program that is writing.
    std::chrono::milliseconds busyTimeout{5000};
    // A store that was made by another version may need its search index made anew, which takes some seconds
    // for a hundred thousand stories. Called on the thread that opens.
    IndexProgress onIndexing = {};
};

// Opens a news store for reading and writing, makes it when the file is absent or empty, and brings an older
// one up to date. Folders are not made. A file that cannot be used (no news store, damaged, of a newer
// version, read-only, in use) is an error and stays as it is.
Result<std::unique_ptr<Database>> openStore(const QString& path, const StoreOptions& options = {});

// Opens a news store that is there to read it: as openStore() where it can be written to, so that an older
// one is brought up to date; where it cannot, as it is (Database::isReadOnly()), provided that it is of the
// present version. An absent or empty file is an error, and stays as it is.
Result<std::unique_ptr<Database>> openStoreToRead(const QString& path, const StoreOptions& options = {});

// A store that is written to on one thread and read on another.
struct StoreConnections {
    std::unique_ptr<Database> writing;
    std::unique_ptr<Database> reading;
};

// Opens a second connection beside that of a store that could be opened; an error of either.
Result<StoreConnections> withReader(Result<std::unique_ptr<Database>> store);

// Why this open database cannot be read as a news store: it is none, still empty, or of another version.
// Nothing when it can. Reads only.
std::optional<Error> readingFault(Database& database);

}  // namespace wirepane
