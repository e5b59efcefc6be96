// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/store_opening.h"

#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "terminal/session/sample_filling.h"
#include "terminal/session/sample_history.h"
#include "terminal/session/session_errors.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

Done makeFolderOf(const QString& file) {
    const QString folder = QFileInfo(file).absolutePath();
    if (!QDir().mkpath(folder))
        return makeError<session_errors::folderNotMade>(folder);
    return Nothing{};
}

Done fill(const QString& storeFile, bool isFollowed, const IndexProgress& onIndexing,
          const IndexProgress& onFilling) {
    const auto database = openOrMakeStore(storeFile, onIndexing);
    // One that can only be read stays as it is.
    if (!database)
        return openStoreToRead(storeFile) ? Done(Nothing{}) : Done(database.error());
    std::int64_t hasNews = 0;
    if (!database.value()->readNumber("SELECT EXISTS(SELECT 1 FROM headlines)", hasNews))
        return database.value()->failure();
    if (!mayShowSample(*database.value()) || (hasNews != 0 && !isFollowed))
        return Nothing{};
    SampleOptions options;
    options.now = host_clock::now();
    // About: weekends have less.
    const std::int64_t total = std::int64_t{isFollowed ? 1 : options.days} * options.headlinesPerDay;
    const auto tell = [&](std::int64_t done) {
        if (onFilling)
            onFilling(done, total);
        return true;
    };
    if (!isFollowed) {
        const auto filled = fillWithSample(*database.value(), options, tell);
        return filled ? Done(Nothing{}) : Done(filled.error());
    }
    const Done filled = bringSampleUpToDate(*database.value(), options, tell);
    // What is there can be read, whoever keeps the rest away.
    return hasNews != 0 ? Done(Nothing{}) : filled;
}

}  // namespace

Result<std::unique_ptr<Database>> openOrMakeStore(const QString& storeFile, const IndexProgress& onIndexing) {
    if (const Done folder = makeFolderOf(storeFile); !folder)
        return folder.error();
    return openStore(storeFile, {.onIndexing = onIndexing});
}

Result<std::unique_ptr<EmbeddedBackEnd>> openBackEnd(const QString& storeFile, SampleUse sample,
                                                     const IndexProgress& onIndexing,
                                                     const IndexProgress& onFilling) {
    if (const Done folder = makeFolderOf(storeFile); !folder)
        return folder.error();
    if (sample != SampleUse::None) {
        if (const Done filled = fill(storeFile, sample == SampleUse::Followed, onIndexing, onFilling);
            !filled)
            return filled.error();
    }
    return EmbeddedBackEnd::open(storeFile, onIndexing);
}

}  // namespace wirepane
