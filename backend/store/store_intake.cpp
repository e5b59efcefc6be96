// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_intake.h"

#include "backend/database/store_sync.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <sqlite3.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Who finds the store busy tries again later, and lets others have their turn meanwhile.
constexpr std::chrono::milliseconds patience{250};
constexpr qint64 longLog = 16 << 20;  // bytes
constexpr std::chrono::milliseconds betweenPieces{20};
constexpr std::chrono::milliseconds importsLookedAfter{1000};
// Of words for the index; writing what was gathered takes as long again.
constexpr qint64 gatherMs = 25;

}  // namespace

StoreIntake::StoreIntake(Database& store, StoreSync& storeSync, Reported reported)
    : database(store), sync(storeSync), tell(std::move(reported)), version(store), importLock(store.path()) {
    database.setBusyTimeout(patience);
    writer = std::make_unique<StoreWriter>(database);
    version.hasChanged();
    thread.post([this] { lookForUpkeep(); });
}

StoreIntake::~StoreIntake() {
    writer->stop();
}

void StoreIntake::ask(Work work, Then then) {
    jobs.push_back({std::move(work), std::move(then)});
    if (jobs.size() == 1)
        beginNext();
}

void StoreIntake::finish() {
    while (!jobs.empty()) {
        thread.run([] {});
        answers.callAll();
    }
}

void StoreIntake::beginNext() {
    thread.post([this, work = jobs.front().work] {
        const WorkReport done = perform(work);
        answers.post([this, done] { report(done); });
    });
}

WorkReport StoreIntake::perform(const Work& work) {
    if (work)
        work(*writer);
    WorkReport done{.symbols = writer->takeChangedSymbols(), .damage = database.damage()};
    done.byOthers = version.hasChanged();
    if (std::exchange(madeChanges, false))
        done.byOthers = true;
    // An import that is under way looks after the log itself.
    done.isLogLong = done.byOthers && !upkeep && QFileInfo(database.path() + u"-wal"_s).size() > longLog;
    if (done.byOthers)
        lookForUpkeep();
    return done;
}

void StoreIntake::lookForUpkeep() {
    if (upkeep || database.isReadOnly() || !needsUpkeep(database))
        return;
    upkeep = std::make_unique<Upkeep>(database);
    thread.postLater(betweenPieces, [this] { doUpkeep(); });
}

// An import that is under way does it itself, unless it is killed; one that wants to begin may do so between
// two pieces.
void StoreIntake::doUpkeep() {
    const bool isOurs = importLock.take() == ImportLock::Taken::Yes;
    const bool isMore = isOurs ? doPieceOfUpkeep() : needsUpkeep(database);
    importLock.release();
    if (isMore)
        thread.postLater(isOurs ? betweenPieces : importsLookedAfter, [this] { doUpkeep(); });
    else
        upkeep.reset();
}

// Whether more is left. What fails is tried again when another program has written.
bool StoreIntake::doPieceOfUpkeep() {
    const Result<bool> cleared = upkeep->ofImports.clearSome();
    if (!cleared || cleared.value())
        return bool(cleared);
    QElapsedTimer clock;
    clock.start();
    const auto isEnough = [&clock] { return clock.elapsed() >= gatherMs; };
    std::vector<TakeOutcome> outcomes;
    Result<bool> isMore = upkeep->changes.makeSome(*writer, isEnough, outcomes);
    madeChanges = madeChanges || !outcomes.empty();
    if (isMore && !isMore.value())
        isMore = upkeep->ofImports.indexSome(isEnough);
    if (isMore && !isMore.value())
        isMore = upkeep->ofIndex.renewSome(isEnough);
    return isMore && isMore.value();
}

void StoreIntake::report(const WorkReport& done) {
    tell(done);
    // The readers have just moved on to the log's end: now a checkpoint can carry all of it over, and nobody
    // writes meanwhile. A log that is never quite carried over grows without end.
    if (sync.isLogLong() || done.isLogLong) {
        thread.post([this] {
            checkpoint();
            answers.post([this] { report({}); });
        });
        return;
    }
    const Then then = std::move(jobs.front().then);
    jobs.pop_front();
    if (!jobs.empty())
        beginNext();
    if (then)
        then();
}

void StoreIntake::checkpoint() {
    sqlite3_wal_checkpoint_v2(database.handle(), "main", SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    sync.noteCheckpoint();
}

}  // namespace wirepane
