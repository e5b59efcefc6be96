// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_guard.h"

#include "backend/database/read_transaction.h"
#include "backend/store/store_file.h"
#include "backend/store/store_rules.h"

#include <limits>
#include <utility>

namespace wirepane {

namespace {

constexpr std::int64_t idsAtOnce = 200;

}  // namespace

StoreGuard::StoreGuard(QString storePath, std::function<void()> found, const GuardPace& given)
    : path(std::move(storePath)), pace(given), tell(std::move(found)) {
    thread.post([this] { thread.postLater(pace.firstPage, [this] { readPage(); }); });
}

void StoreGuard::readPage() {
    const bool isThere = lookAtPage();
    if (isFaulty) {
        database.reset();
        answers.post(tell);
        return;
    }
    if (!isThere)
        nextId = 0;
    thread.postLater(isThere ? pace.nextPage : pace.nextPass, [this] { readPage(); });
}

// A store that cannot be opened now may be another time.
bool StoreGuard::lookAtPage() {
    if (!database) {
        auto opened = Database::openToRead(path, StoreOptions().busyTimeout);
        if (!opened || readingFault(*opened.value()))
            return false;
        database = std::move(opened.value());
    }
    const ReadTransaction moment(*database);
    StoreRules rules(*database);
    const std::optional<std::int64_t> first = rules.idFrom(nextId);
    if (first) {
        constexpr std::int64_t last = std::numeric_limits<std::int64_t>::max();
        nextId = *first < last - idsAtOnce ? *first + idsAtOnce : last;
        rules.checkPage(*first, nextId);
        rules.checkIndexes(*first, nextId);
    } else {
        rules.checkTables();
    }
    isFaulty = rules.isBroken() || database->damage();
    return first.has_value();
}

}  // namespace wirepane
