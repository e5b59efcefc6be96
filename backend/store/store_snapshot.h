// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/arrival_log.h"

#include <cstdint>

namespace wirepane {

// Makes a connection that reads stand at one moment of its store: what others write shows only when it moves
// on. Where a store is kept without a write-ahead log it shows at once, since who reads would keep writers
// out there. Thread: that of the database, which must outlive this.
class StoreSnapshot {
public:
    // Stands at the present moment. `arrivals` are those of the same connection, and outlive this, too.
    StoreSnapshot(Database& database, ArrivalLog& arrivals);

    // Moves on to the present moment. What cannot be read leaves the position as it was.
    void moveOn();
    // The position of the last arrival at this moment; 0: none yet.
    std::int64_t position() const { return last; }

private:
    Database& database;
    ArrivalLog& arrivals;
    Statement begin;
    Statement end;
    bool hasLog = false;
    std::int64_t last = 0;
};

}  // namespace wirepane
