// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/network/network_source.h"

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace wirepane {

// How a source stands, as the terminal that reads it has kept it. Moments are seconds since 1970; 0: never.
struct SourceStanding {
    std::int64_t lastTry = 0;
    std::int64_t lastSuccess = 0;  // an answer that could be read, also one that said "unchanged"
    std::int64_t nextTry = 0;
    std::int64_t day = 0;  // yyyymmdd, local: the day of `items`
    int items = 0;         // taken in on that day
    int delay = -1;        // of its last news, milliseconds from its publishing on; -1: there was none
    QJsonObject fault;     // of the last try, as errorValue() makes it; empty: there was none
    QString gaps;          // what has been learned of the gaps between its news, in the source's own form

    bool operator==(const SourceStanding&) const = default;
    int itemsOn(std::int64_t today) const { return day == today ? items : 0; }
};

// The list of the user's sources in a store, in the user's order, and how each stands. Each change is a
// transaction of its own. Another program may change the list while a terminal runs: its revision is another
// one then. Errors are the database's, or network_errors.h. Thread: that of the database, which must outlive
// this.
class SourceList {
public:
    static constexpr int mostSources = 1000;

    explicit SourceList(Database& database);

    Result<std::vector<NetworkSource>> sources();
    Result<NetworkSource> source(const QString& name);
    // Puts it at the end of the list, under a name that none has; answers that name. One that is not paused
    // and is to have a service of its own gets one, here and with each change: that of its mapping, else one
    // that is new, which is called as the source is.
    Result<QString> add(NetworkSource source);
    // Replaces that of its name. One that has another address or kind from now on is read from the start.
    Done change(NetworkSource source);
    Done pause(const QString& name, bool isPaused);
    // The news that it has brought stays; its position and standing go.
    Done remove(const QString& name);
    // Moves it to this place of the list, from 0 on; beyond the list: to its end.
    Done move(const QString& name, int place);

    // Grows with each change of the list; what is kept of standings is none.
    Result<std::int64_t> revision();

    // Of a source that was never tried: all as it is made.
    Result<SourceStanding> standing(const QString& name);
    // All of them in one transaction; one that the list does not hold any more is passed over.
    Done keepStandings(const std::vector<std::pair<QString, SourceStanding>>& standings);

private:
    QString freeName(const NetworkSource& source);
    Done giveService(NetworkSource& source);
    Result<unsigned char> freeService();
    // In a transaction that also raises the revision; taken back where `work` or the database fails.
    Done inTransaction(const std::function<Done()>& work);
    Done ran(bool isRun) const;
    Error failure() const;

    Database& database;
    Statement readServices;
    Statement writeService;
    Statement readAll;
    Statement readOne;
    Statement append;
    Statement replace;
    Statement erase;
    Statement erasePosition;
    Statement place;
    Statement raise;
    Statement readRevision;
    Statement readStanding;
    Statement writeStanding;
    Statement eraseStanding;
};

}  // namespace wirepane
