// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"

namespace wirepane {

// What is read during its life is of one moment of the store.
class ReadTransaction {
public:
    explicit ReadTransaction(Database& database) : owner(database), begun(database.execute("BEGIN")) {}
    ~ReadTransaction() {
        if (begun)
            owner.execute("COMMIT");
    }
    ReadTransaction(const ReadTransaction&) = delete;
    ReadTransaction& operator=(const ReadTransaction&) = delete;

private:
    Database& owner;
    bool begun;
};

}  // namespace wirepane
