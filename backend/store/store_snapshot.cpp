// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_snapshot.h"

#include "backend/database/database.h"

using namespace Qt::StringLiterals;

namespace wirepane {

StoreSnapshot::StoreSnapshot(Database& reading, ArrivalLog& log)
    : database(reading), arrivals(log), begin(reading, "BEGIN"), end(reading, "COMMIT") {
    QString journal;
    hasLog = database.readText("PRAGMA journal_mode", journal) && journal == u"wal"_s;
    moveOn();
}

void StoreSnapshot::moveOn() {
    if (database.inTransaction())
        Query(end).run();
    if (hasLog)
        Query(begin).run();
    // The moment is that of the first reading.
    last = arrivals.last().value_or(last);
}

}  // namespace wirepane
