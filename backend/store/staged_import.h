// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/turn_bell.h"
#include "backend/store/held_changes.h"
#include "backend/store/import_lock.h"
#include "backend/store/import_upkeep.h"
#include "backend/store/index_renewal.h"
#include "backend/store/store_writer.h"

#include <QElapsedTimer>
#include <QSet>

#include <chrono>
#include <functional>
#include <utility>
#include <vector>

namespace wirepane {

// Takes files into a store beside whoever else writes to it.
//
// Few items (begin) go in as with a StoreWriter, in one transaction. Many (beginMany) go in by several, each
// of which ends early once another program waits for its turn, and stay hidden until commit() shows them all
// at once; what is killed or taken back before that leaves nothing that readers see, and the next one clears
// it away. They enter the search index afterwards (indexSome).
//
// News that others bring meanwhile stands before the file: where it is the same piece of news as a hidden
// one, the hidden one is set aside, and comes in again in the transaction that shows the rest. What would
// change news that is there, and all that follows an item that is no news, is put off (HeldChanges): commit()
// makes it due in that transaction, and then makes it, in short ones. What is killed meanwhile goes on with
// the next import, or in the terminal. A file that begins with something else than news goes in as few items
// do.
//
// One import into a store at a time takes many items; others wait. Thread: that of the database, which must
// outlive this and is used by nothing else between beginMany() and commit() or rollback().
class StagedImport : public ItemSink {
public:
    // How long a transaction gathers while nobody waits, how long even if somebody does (a shorter one is
    // not worth it), and how long others have to notice that it is over: who waits looks every millisecond.
    // Words for the index take as long to write as to gather, and nobody can end that early: so there is less
    // of them in one, and much less where others have waited lately.
    struct Pace {
        std::chrono::milliseconds batch{1000};
        std::chrono::milliseconds indexBatch{200};
        std::chrono::milliseconds indexBatchBesideOthers{25};
        std::chrono::milliseconds lately{10'000};
        std::chrono::milliseconds leastBatch{10};
        std::chrono::milliseconds pause{3};
    };

    explicit StagedImport(Database& database);
    StagedImport(Database& database, Pace pace);
    // Takes back what is under way.
    ~StagedImport() override;
    StagedImport(const StagedImport&) = delete;
    StagedImport& operator=(const StagedImport&) = delete;

    // Called again and again while another import is waited for; false: no longer.
    void onWaiting(std::function<bool()> callback) { isPatient = std::move(callback); }

    Done begin() override;
    Done beginMany() override;
    void pause() override;
    Result<TakeOutcome> take(const StoreItem& item) override;
    Done commit() override;
    LateOutcomes takeLateOutcomes() override { return std::exchange(late, {}); }
    void rollback() override { takeBack(); }

    // Makes a piece of what a killed import has left due, brings one of what has been taken in into the
    // index, and then goes on making that anew where earlier rules have made it, unless another import is
    // under way, which does that then; true: more is left.
    Result<bool> indexSome();

private:
    enum class State { Idle, AtOnce, Beginning, Staging };

    Result<bool> takeLock();
    Done clearHidden();
    void takeBack();
    void setLasting(bool on);
    // Transactions of hidden news.
    Done openBatch();
    Done closeBatch();
    void startBatch();
    bool isWorthwhile() const;
    bool isEnough(std::chrono::milliseconds most);
    bool hasRung();
    std::chrono::milliseconds mostOfIndex() const;
    Done readyBatch();
    Result<TakeOutcome> stage(const StoreItem& item);
    Result<TakeOutcome> takeHidden(const NewsItem& item);
    void letOthersWrite();
    void flushLog();
    void checkpointAtTimes();
    void checkpoint();
    // Within the last transaction.
    Done takeAside(std::vector<NewsItem>& items);
    Done showAll();
    // After it.
    Done makeAllChanges();
    // A short transaction, and a pause.
    using IsEnough = std::function<bool()>;
    Result<bool> doPiece(const std::function<Result<bool>(const IsEnough&)>& work);

    Database& database;
    const Pace pace;
    StoreWriter writer;
    ImportUpkeep upkeep;
    IndexRenewal renewal;
    ImportLock lock;
    TurnBell bell;
    HeldChanges changes;
    Statement readAside;
    Statement readAsideSymbols;
    Statement deleteAside;
    std::function<bool()> isPatient;
    State state = State::Idle;
    bool isBatchOpen = false;
    bool putsAllOff = false;
    QSet<std::size_t> identitiesPutOff;  // their hashes
    QElapsedTimer sinceOpened;
    QElapsedTimer sinceCheckpoint;
    QElapsedTimer sinceRung;
    LateOutcomes late;
};

}  // namespace wirepane
