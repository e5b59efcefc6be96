// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/item_sink.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace wirepane {
class StoreWriter;

// What an import of much has to do once its news is shown: items that change news which readers see already.
// They wait in the store and are nobody's to see. From the transaction on that shows the import's news they
// are due, and are made in short transactions, by the import or, after a kill, by whoever has the time:
// nothing is lost between two of them. Whoever uses this holds the ImportLock. Thread: that of the database,
// which must outlive this.
class HeldChanges {
public:
    explicit HeldChanges(Database& database);

    // In transactions of the import's; false on failure, which the database then holds.
    bool add(const StoreItem& item);
    bool makeDue();

    // Of an import that was killed or given up before they were due: in a transaction, takes some of them
    // away. False: none are left, or a failure, which the database then holds.
    bool dropSome();

    // Makes those that are due, in their order, in one transaction, until `isEnough`, which is asked after
    // each; true: more are left. What has become of each is appended.
    Result<bool> makeSome(StoreWriter& writer, const std::function<bool()>& isEnough,
                          std::vector<TakeOutcome>& outcomes);

private:
    Result<std::int64_t> takeDue(StoreWriter& writer, std::int64_t last,
                                 const std::function<bool()>& isEnough, std::vector<TakeOutcome>& outcomes);

    Database& database;
    Statement write;
    Statement readDue;
    Statement readLast;
    Statement remove;
    Statement drop;
};

// How many changes are due. Nothing on failure, which the database then holds.
std::optional<std::int64_t> dueChanges(Database& database);

}  // namespace wirepane
