// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/data_version.h"
#include "backend/database/database.h"
#include "backend/store/held_changes.h"
#include "backend/store/import_lock.h"
#include "backend/store/import_upkeep.h"
#include "backend/store/index_renewal.h"
#include "backend/store/store_writer.h"
#include "backend/worker_thread.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace wirepane {
class StoreSync;

// What a piece of work has left behind.
struct WorkReport {
    std::vector<SymbolItem> symbols;  // that it has changed
    bool byOthers = false;            // another program has written, too, since the last report, or has left
                                      // what was to be written
    bool isLogLong = false;           // that of the store, by what others have written
    std::optional<Error> damage;      // the first that the connection has met
};

// Writes to a store on a thread of its own, one piece of work after the other in the order of asking. Nobody
// who asks waits for a disk or for another program that is writing. Interface thread.
class StoreIntake {
public:
    // Takes what it takes in one transaction or several. On the store's thread.
    using Work = std::function<void(StoreWriter&)>;
    using Then = std::function<void()>;
    // Called after each piece of work, before the next one begins: a reader that moves on now sees all that
    // has been reported, and, unless another program writes, no more.
    using Reported = std::function<void(const WorkReport&)>;

    // The database is used on the thread alone while this lives. `sync` tells when its log has become long.
    // Both outlive this.
    StoreIntake(Database& database, StoreSync& sync, Reported reported);

    // What is under way is given up, what has not begun is dropped.
    ~StoreIntake();
    StoreIntake(const StoreIntake&) = delete;
    StoreIntake& operator=(const StoreIntake&) = delete;

    // `then` is called back from the event loop, when the work is done and has been reported, and the next
    // has begun.
    void ask(Work work, Then then = {});
    // Waits until all that was asked is done, and calls back.
    void finish();

private:
    struct Job {
        Work work;
        Then then;
    };

    void beginNext();
    void report(const WorkReport& report);
    // On the thread:
    WorkReport perform(const Work& work);
    void checkpoint();
    // What imports have left to do, and then the search index that is to be made anew, a piece at a time, so
    // that what is asked meanwhile waits for no more.
    void lookForUpkeep();
    void doUpkeep();
    bool doPieceOfUpkeep();

    Database& database;
    StoreSync& sync;
    Reported tell;
    std::unique_ptr<StoreWriter> writer;
    DataVersion version;  // of the store, as others have left it
    ImportLock importLock;
    struct Upkeep {
        explicit Upkeep(Database& database) : ofImports(database), changes(database), ofIndex(database) {}
        ImportUpkeep ofImports;
        HeldChanges changes;
        IndexRenewal ofIndex;
    };
    std::unique_ptr<Upkeep> upkeep;  // while there is something to do
    bool madeChanges = false;        // of a killed import, since the last report
    std::deque<Job> jobs;            // the first is under way
    CallQueue answers;               // on the interface thread
    WorkerThread thread;             // last: it uses all of the above
};

}  // namespace wirepane
