// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/store_sync.h"

#include "backend/database/database_errors.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int longLog = 4000;  // pages
constexpr std::chrono::milliseconds busyTimeout{1000};

}  // namespace

StoreSync::StoreSync(Database& committing)
    : path(committing.path()), writing(committing.handle()), outcome(Nothing{}) {
    // A log whose commits are not waited for loses the last of them at worst, and never its order.
    QString journal;
    const bool hasLog = committing.readText("PRAGMA journal_mode", journal) && journal == u"wal"_s;
    if (hasLog && committing.execute("PRAGMA synchronous = NORMAL"))
        sqlite3_wal_hook(writing, &StoreSync::committed, this);
}

StoreSync::~StoreSync() {
    sqlite3_wal_hook(writing, nullptr, nullptr);
}

int StoreSync::committed(void* self, sqlite3*, const char*, int pagesInLog) {
    auto* const sync = static_cast<StoreSync*>(self);
    sync->pagesInLog = pagesInLog;
    sync->ask();
    return SQLITE_OK;
}

// A log that begins anew after a checkpoint is shorter than it was then.
bool StoreSync::isLogLong() const {
    const int pages = pagesInLog;
    const int before = pagesAtCheckpoint;
    return pages - (pages < before ? 0 : before) >= longLog;
}

void StoreSync::ask() {
    ++commits;
    if (!isAsked.exchange(true))
        thread.post([this] { syncWhatIsNew(); });
}

// Asks anew, too, so that one who was told of an error can try again.
void StoreSync::whenOnDisk(Callback callback) {
    ask();
    waiting.emplace_back(commits, std::move(callback));
}

// Commits that come meanwhile ask again.
void StoreSync::syncWhatIsNew() {
    isAsked = false;
    const std::int64_t upTo = commits;
    if (synced == upTo)
        return;
    const Done done = sync();
    synced = upTo;
    outcome = done;
    answers.post([this, upTo, done] { deliver(upTo, done); });
}

Done StoreSync::sync() {
    if (!database) {
        auto opened = Database::open(path, Database::Mode::Write, busyTimeout);
        if (!opened)
            return opened.error();
        opened.value()->setCheckpointOnClose(false);
        // The log is opened by the first look into the store.
        std::int64_t version = 0;
        if (!opened.value()->readNumber("PRAGMA user_version", version))
            return opened.value()->failure();
        database = std::move(opened.value());
    }
    sqlite3_file* log = nullptr;
    sqlite3_file_control(database->handle(), "main", SQLITE_FCNTL_JOURNAL_POINTER, &log);
    if (log == nullptr || log->pMethods == nullptr)
        return Nothing{};  // no log is kept here: commits wait for the disk themselves
    if (log->pMethods->xSync(log, SQLITE_SYNC_NORMAL) != SQLITE_OK)
        return makeError<database_errors::notOnDisk>(path);
    return Nothing{};
}

// Whoever is called may ask again, or destroy what waits behind him.
void StoreSync::deliver(std::int64_t upTo, const Done& onDisk) {
    while (!waiting.empty() && waiting.front().first <= upTo) {
        const Callback callback = std::move(waiting.front().second);
        waiting.pop_front();
        callback(onDisk);
    }
}

}  // namespace wirepane
