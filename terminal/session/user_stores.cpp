// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/user_stores.h"

#include "backend/database/database.h"
#include "backend/network/source_list.h"
#include "backend/store/store_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

enum class Content { Nothing, OnlySample, OwnNews };

// A source that is asked brings news of the user's own, even if none has come yet.
bool hasSourceToAsk(Database& store) {
    const auto sources = SourceList(store).sources();
    return sources && !std::ranges::all_of(sources.value(), &NetworkSource::isPaused);
}

Content contentOf(const QString& storeFile) {
    if (!QFileInfo::exists(storeFile))
        return Content::Nothing;
    const auto store = openStoreToRead(storeFile);
    std::int64_t hasNews = 1;
    std::int64_t hasOther = 1;
    // What cannot be read is the user's own until he says otherwise.
    if (!store || !store.value()->readNumber("SELECT EXISTS(SELECT 1 FROM headlines)", hasNews))
        return Content::OwnNews;
    if (hasSourceToAsk(*store.value()))
        return Content::OwnNews;
    if (hasNews == 0)
        return Content::Nothing;
    const bool isRead = store.value()->readNumber(
        "SELECT EXISTS(SELECT 1 FROM headlines WHERE identity NOT LIKE 'sample:%')", hasOther);
    return isRead && hasOther == 0 ? Content::OnlySample : Content::OwnNews;
}

// Only who has a store for himself can end its log, and without a log it is one file.
bool endLog(const QString& storeFile) {
    const auto store = openStore(storeFile);
    QString mode;
    return store && store.value()->readText("PRAGMA journal_mode = DELETE", mode) && mode == "delete"_L1;
}

}  // namespace

UserStores userStores() {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    return {folder.filePath(u"news.wirepane"_s), folder.filePath(u"sample.wirepane"_s)};
}

QString storeOfWire(const QString& wire, WireStore use) {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    return folder.filePath(
        (use == WireStore::Ingest ? u"ingest-%1.wirepane"_s : u"wire-%1.wirepane"_s).arg(wire));
}

StoreKind startingStore(const UserStores& stores, const std::optional<StoreKind>& chosen) {
    const bool hasSample = QFileInfo::exists(stores.sample);
    if (chosen && (hasSample || *chosen == StoreKind::Own))
        return *chosen;
    const Content own = contentOf(stores.own);
    if (own == Content::Nothing)
        return StoreKind::Sample;
    if (own == Content::OwnNews || hasSample)
        return StoreKind::Own;
    return endLog(stores.own) && QFile::rename(stores.own, stores.sample) ? StoreKind::Sample
                                                                          : StoreKind::Own;
}

QString storeToRead(const UserStores& stores) {
    const bool onlySample = !QFileInfo::exists(stores.own) && QFileInfo::exists(stores.sample);
    return stores[onlySample ? StoreKind::Sample : StoreKind::Own];
}

}  // namespace wirepane
