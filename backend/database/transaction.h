// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"

namespace wirepane {

// A writing transaction: taken back at the end of its life unless it was committed.
class Transaction {
public:
    explicit Transaction(Database& database) : owner(database), begun(database.begin()) {}
    ~Transaction() {
        if (begun && owner.inTransaction())
            owner.execute("ROLLBACK");
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // False: another program is writing, or the file cannot be written; the database holds the sentence.
    bool hasBegun() const { return begun; }
    bool commit() { return begun && owner.commit(); }

private:
    Database& owner;
    bool begun;
};

}  // namespace wirepane
