// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/staged_import.h"

#include "backend/clean_text.h"
#include "backend/store/store_errors.h"

#include <QFile>

#include <sqlite3.h>
#include <thread>
#include <unistd.h>

namespace wirepane {

namespace {

constexpr std::chrono::seconds betweenCheckpoints{5};
constexpr std::chrono::milliseconds betweenLooks{100};  // for another import to end

std::chrono::milliseconds since(const QElapsedTimer& clock) {
    return std::chrono::milliseconds(clock.elapsed());
}

}  // namespace

StagedImport::StagedImport(Database& owner) : StagedImport(owner, Pace()) {}

StagedImport::StagedImport(Database& owner, Pace asked)
    : database(owner),
      pace(asked),
      writer(owner),
      upkeep(owner),
      renewal(owner),
      lock(owner.path()),
      bell(owner.path()),
      changes(owner),
      readAside(owner,
                "SELECT id, service, set_aside.identity, version, time, title, category, unpacked(text, id), "
                "text IS NULL, "
                "reason, reason IS NOT NULL "
                "FROM set_aside JOIN all_headlines ON id = set_aside.headline "
                "LEFT JOIN stories ON stories.headline = id "
                "LEFT JOIN withdrawals ON withdrawals.headline = id ORDER BY id"),
      readAsideSymbols(owner,
                       "SELECT market, code FROM related_symbols WHERE headline = ? ORDER BY position"),
      deleteAside(owner, "DELETE FROM all_headlines WHERE id = ?") {}

StagedImport::~StagedImport() {
    takeBack();
}

Done StagedImport::begin() {
    Done begun = writer.begin();
    if (begun)
        state = State::AtOnce;
    return begun;
}

Done StagedImport::beginMany() {
    const Result<bool> locked = takeLock();
    if (!locked)
        return locked.error();
    if (!locked.value() || database.wasTakenAway())
        return begin();
    Done cleared = clearHidden();
    if (cleared)
        cleared = makeAllChanges();
    if (!cleared) {
        lock.release();
        return cleared;
    }
    setLasting(false);
    putsAllOff = false;
    identitiesPutOff.clear();
    late = {};
    state = State::Beginning;
    return Nothing{};
}

// False: nobody can have it.
Result<bool> StagedImport::takeLock() {
    ImportLock::Taken taken = lock.take();
    for (; taken == ImportLock::Taken::Busy; taken = lock.take()) {
        if (isPatient && !isPatient())
            return makeError<store_errors::stopped>();
        std::this_thread::sleep_for(betweenLooks);
    }
    return taken == ImportLock::Taken::Yes;
}

Done StagedImport::clearHidden() {
    Result<bool> isMore = true;
    while (isMore && isMore.value()) {
        isMore = upkeep.clearSome();
        letOthersWrite();
    }
    return isMore ? Done(Nothing{}) : Done(isMore.error());
}

// What is hidden need not outlast the machine: the transaction that shows it brings all of it to the disk.
// Its pages are written many times over: the fewer checkpoints, the fewer of them go into the file in vain.
void StagedImport::setLasting(bool on) {
    database.execute(on ? "PRAGMA synchronous = FULL; PRAGMA wal_autocheckpoint = 1000"
                        : "PRAGMA synchronous = NORMAL; PRAGMA wal_autocheckpoint = 0");
}

Result<TakeOutcome> StagedImport::take(const StoreItem& item) {
    const bool isNews = std::holds_alternative<NewsItem>(item);
    if (state == State::Beginning && !isNews) {
        setLasting(true);
        lock.release();
        if (Done begun = begin(); !begun)
            return begun.error();
    }
    if (state == State::AtOnce)
        return writer.take(item);
    state = State::Staging;
    putsAllOff = putsAllOff || !isNews;
    return stage(item);
}

Result<TakeOutcome> StagedImport::stage(const StoreItem& item) {
    if (Done ready = readyBatch(); !ready)
        return ready.error();
    if (!putsAllOff) {
        Result<TakeOutcome> outcome = takeHidden(std::get<NewsItem>(item));
        isBatchOpen = bool(outcome);
        if (!outcome || outcome.value().take != Take::PutOff)
            return outcome;
    }
    if (!changes.add(item))
        return database.failure();
    return TakeOutcome{Take::PutOff, {}};
}

Result<TakeOutcome> StagedImport::takeHidden(const NewsItem& item) {
    // What comes behind news that was put off must not be decided before it.
    const std::size_t identity = qHashMulti(0, item.service, cleanTitle(item.identity));
    if (identitiesPutOff.contains(identity))
        return TakeOutcome{Take::PutOff, {}};
    Result<TakeOutcome> outcome = writer.take(item);
    if (outcome && outcome.value().take == Take::PutOff)
        identitiesPutOff.insert(identity);
    return outcome;
}

Done StagedImport::readyBatch() {
    if (isBatchOpen && isEnough(pace.batch)) {
        if (Done closed = closeBatch(); !closed)
            return closed;
    }
    return isBatchOpen ? Done(Nothing{}) : openBatch();
}

Done StagedImport::openBatch() {
    Done begun = writer.beginHidden();
    isBatchOpen = bool(begun);
    startBatch();
    return begun;
}

void StagedImport::startBatch() {
    sinceOpened.start();
    bell.listen();
}

bool StagedImport::isWorthwhile() const {
    return since(sinceOpened) >= pace.leastBatch;
}

bool StagedImport::isEnough(std::chrono::milliseconds most) {
    return since(sinceOpened) >= most || (isWorthwhile() && hasRung());
}

bool StagedImport::hasRung() {
    const bool rung = bell.hasRung();
    if (rung)
        sinceRung.start();
    return rung;
}

std::chrono::milliseconds StagedImport::mostOfIndex() const {
    const bool isBesideOthers = sinceRung.isValid() && since(sinceRung) < pace.lately;
    return isBesideOthers ? pace.indexBatchBesideOthers : pace.indexBatch;
}

Done StagedImport::closeBatch() {
    isBatchOpen = false;
    if (Done kept = writer.commit(); !kept)
        return kept;
    checkpointAtTimes();
    letOthersWrite();
    return Nothing{};
}

void StagedImport::pause() {
    // What fails here fails again with the next item.
    if (isBatchOpen && isWorthwhile())
        (void)closeBatch();
}

void StagedImport::letOthersWrite() {
    std::this_thread::sleep_for(pace.pause);
}

// Where it fails, the commit that follows says so.
void StagedImport::flushLog() {
    QFile log(database.path() + QStringLiteral("-wal"));
    if (log.open(QIODevice::ReadOnly))
        (void)fdatasync(log.handle());
}

void StagedImport::checkpointAtTimes() {
    if (!sinceCheckpoint.isValid())
        sinceCheckpoint.start();
    if (since(sinceCheckpoint) >= betweenCheckpoints)
        checkpoint();
}

// Keeps no writer waiting, and carries over no more than readers let it.
void StagedImport::checkpoint() {
    sinceCheckpoint.start();
    sqlite3_wal_checkpoint_v2(database.handle(), "main", SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
}

Done StagedImport::commit() {
    if (state == State::AtOnce) {
        Done committed = writer.commit();
        if (committed)
            state = State::Idle;
        return committed;
    }
    if (state == State::Idle)
        return writer.commit();
    if (isBatchOpen) {
        if (Done closed = closeBatch(); !closed)
            return closed;
    }
    // So that little is left to be brought to the disk while others wait.
    flushLog();
    database.execute("PRAGMA synchronous = FULL");
    Done shown = writer.begin();
    if (shown)
        shown = showAll();
    if (shown)
        shown = writer.commit();
    if (!shown)
        return shown;
    state = State::Idle;
    Done changed = makeAllChanges();
    lock.release();
    return changed;
}

// They need not outlast the machine one by one: it goes on with what is still due.
Done StagedImport::makeAllChanges() {
    database.execute("PRAGMA synchronous = NORMAL");
    Result<bool> isMore = true;
    while (isMore && isMore.value())
        isMore = doPiece([this](const IsEnough& isEnoughNow) {
            return changes.makeSome(writer, isEnoughNow, late.putOff);
        });
    flushLog();
    database.execute("PRAGMA synchronous = FULL");
    return isMore ? Done(Nothing{}) : Done(isMore.error());
}

Done StagedImport::showAll() {
    std::vector<NewsItem> aside;
    if (Done taken = takeAside(aside); !taken)
        return taken;
    if (Done shown = writer.showHidden(); !shown)
        return shown;
    for (const NewsItem& item : aside) {
        const Result<TakeOutcome> outcome = writer.take(item);
        if (!outcome)
            return outcome.error();
        late.overtaken += outcome.value().take == Take::TakenIn ? 0 : 1;
    }
    return changes.makeDue() ? Done(Nothing{}) : Done(database.failure());
}

// Others need no number and no service of it any more: it comes in again as it came.
Done StagedImport::takeAside(std::vector<NewsItem>& items) {
    std::vector<std::int64_t> ids;
    {
        Query query(readAside);
        while (query.next()) {
            ids.push_back(query.number(0));
            NewsItem& item = items.emplace_back();
            item.service = static_cast<unsigned char>(query.number(1));
            item.identity = query.text(2);
            item.version = query.smallNumber(3);
            item.time = query.number(4);
            item.title = query.text(5);
            item.categoryId = query.smallNumber(6);
            item.story = query.number(8) != 0 ? std::nullopt : std::optional(query.text(7));
            if (query.number(10) != 0)
                item.withdrawn = query.text(9);
        }
        if (query.failed())
            return database.failure();
    }
    for (std::size_t i = 0; i < ids.size(); ++i) {
        for (Query query(readAsideSymbols, ids[i]); query.next();)
            items[i].related.push_back({static_cast<unsigned char>(query.number(0)), query.text(1)});
        if (!Query(deleteAside, ids[i]).run())
            return database.failure();
    }
    return database.execute("DELETE FROM set_aside") ? Done(Nothing{}) : Done(database.failure());
}

void StagedImport::takeBack() {
    writer.rollback();
    isBatchOpen = false;
    if (state == State::Beginning || state == State::Staging) {
        // What cannot be cleared now the next one clears.
        (void)clearHidden();
        lock.release();
    }
    setLasting(true);
    late = {};
    state = State::Idle;
}

Result<bool> StagedImport::indexSome() {
    if (!needsUpkeep(database) || lock.take() != ImportLock::Taken::Yes)
        return false;
    setLasting(false);
    Result<bool> isMore = doPiece([this](const IsEnough& isEnoughNow) {
        std::vector<TakeOutcome> toldToNobody;
        Result<bool> isLeft = changes.makeSome(writer, isEnoughNow, toldToNobody);
        if (isLeft && !isLeft.value())
            isLeft = upkeep.indexSome(isEnoughNow);
        if (isLeft && !isLeft.value())
            isLeft = renewal.renewSome(isEnoughNow);
        return isLeft;
    });
    if (!isMore || !isMore.value()) {
        setLasting(true);
        checkpoint();
        lock.release();
    }
    return isMore;
}

Result<bool> StagedImport::doPiece(const std::function<Result<bool>(const IsEnough&)>& work) {
    // What is waited for before the first headline does not count.
    bool isStarted = false;
    Result<bool> isMore = work([this, &isStarted, most = mostOfIndex()] {
        if (!std::exchange(isStarted, true))
            startBatch();
        return isEnough(most);
    });
    hasRung();
    checkpointAtTimes();
    letOthersWrite();
    return isMore;
}

}  // namespace wirepane
