// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/import_job.h"

#include "backend/import/import_errors.h"
#include "backend/import/read_ahead.h"
#include "backend/import/source_reader.h"
#include "host/contract/clock.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 toldEvery = 100;  // milliseconds
constexpr std::int64_t day = 86400;
constexpr std::int64_t recentDays = 255;

bool isRecent(std::int64_t time) {
    const std::int64_t now = host_clock::now();
    return time >= now - recentDays * day && time <= now + day;
}

}  // namespace

ImportTotals& ImportTotals::operator+=(const ImportTotals& other) {
    takenIn += other.takenIn;
    alreadyThere += other.alreadyThere;
    rejected += other.rejected;
    return *this;
}

int importExitStatus(const ImportReport& report) {
    if (report.failure || (report.filesRead == 0 && !report.stopped))
        return 2;
    return report.totals.rejected > 0 || report.filesRejected > 0 || report.stopped ? 1 : 0;
}

ImportJob::ImportJob(QStringList fileNames, ItemSink& itemSink, ReadOptions readOptions)
    : files(std::move(fileNames)), sink(itemSink), options(std::move(readOptions)) {}

ImportReport ImportJob::run() {
    report = {};
    progress = {};
    bytesBefore = 0;
    for (const QString& path : std::as_const(files))
        progress.bytesTotal += QFileInfo(path).size();
    sinceTold.start();
    for (const QString& path : std::as_const(files)) {
        report.stopped = report.stopped || stopping;
        if (report.stopped || report.failure)
            break;
        runFile(path);
        bytesBefore += QFileInfo(path).size();
    }
    showProgress(progress.file, 0, true);
    return report;
}

// Only regular files: a pipe or a device would never end, or wait for ever.
void ImportJob::runFile(const QString& path) {
    const QFileInfo info(path);
    QFile file(path);
    if (!info.exists())
        rejectFile(path, makeError<import_errors::fileMissing>());
    else if (!info.isFile())
        rejectFile(path, makeError<import_errors::noFile>());
    else if (!file.open(QIODevice::ReadOnly))
        rejectFile(path, makeError<import_errors::fileNotOpened>(file.errorString()));
    else
        takeFile(file, path);
}

void ImportJob::takeFile(QFile& file, const QString& path) {
    const bool isMuch = file.size() > options.limits.atOnce;
    if (const Done begun = isMuch ? sink.beginMany() : sink.begin(); !begun) {
        report.failure = begun.error();
        return;
    }
    ReadOptions ofFile = options;
    ofFile.sourceName = QFileInfo(path).fileName();
    ofFile.leavesRest = true;
    FileState state;
    const Done read = readAhead([&](const ItemVisitor& visit) { return readSource(file, ofFile, visit); },
                                [&](SourceItem&& item) { return takeItem(std::move(item), path, state); },
                                [this] { sink.pause(); });
    if (read && file.error() != QFileDevice::NoError)
        finishFile(path, state, makeError<import_errors::fileNotReadToEnd>(file.errorString()));
    else
        finishFile(path, state, read);
}

bool ImportJob::takeItem(SourceItem&& item, const QString& path, FileState& state) {
    if (stopping)
        return false;
    ++progress.items;
    showProgress(path, item.bytesRead, false);
    if (item.content)
        return store(item.content.value(), path, item.place, state);
    rejectItem(path, item.place, item.content.error(), state);
    return true;
}

bool ImportJob::store(const StoreItem& item, const QString& path, const Phrase& place, FileState& state) {
    const Result<TakeOutcome> outcome = sink.take(item);
    if (!outcome) {
        state.failure = outcome.error();
        return false;
    }
    const auto* const news = std::get_if<NewsItem>(&item);
    const PutOff taken{place, news != nullptr ? std::optional(news->time) : std::nullopt};
    if (outcome.value().take == Take::PutOff)
        state.putOff.push_back(taken);
    else
        count(outcome.value(), path, taken, state);
    return true;
}

void ImportJob::count(const TakeOutcome& outcome, const QString& path, const PutOff& item, FileState& state) {
    if (outcome.take == Take::Rejected) {
        rejectItem(path, item.place, *outcome.reason, state);
        return;
    }
    ++(outcome.take == Take::TakenIn ? state.totals.takenIn : state.totals.alreadyThere);
    if (item.time) {
        state.newest = std::max(state.newest.value_or(*item.time), *item.time);
        state.anyRecent = state.anyRecent || isRecent(*item.time);
    }
}

void ImportJob::countLate(const QString& path, FileState& state) {
    const LateOutcomes late = sink.takeLateOutcomes();
    for (std::size_t i = 0; i < late.putOff.size() && i < state.putOff.size(); ++i)
        count(late.putOff[i], path, state.putOff[i], state);
    state.totals.takenIn -= late.overtaken;
    state.totals.alreadyThere += late.overtaken;
}

void ImportJob::finishFile(const QString& path, FileState& state, const Done& read) {
    if (!read || state.failure || stopping) {
        sink.rollback();
        report.failure = state.failure;
        report.stopped = stopping;
        if (!read)
            rejectFile(path, read.error());
        return;
    }
    if (const Done committed = sink.commit(); !committed) {
        sink.rollback();
        report.failure = committed.error();
        return;
    }
    countLate(path, state);
    ++report.filesRead;
    report.totals += state.totals;
    report.newest = std::max(report.newest, state.newest);
    report.anyRecent = report.anyRecent || state.anyRecent;
}

void ImportJob::rejectFile(const QString& path, const Error& reason) {
    ++report.filesRejected;
    if (reject)
        reject({path, {std::nullopt, reason}});
}

void ImportJob::rejectItem(const QString& path, const Phrase& place, const Error& reason, FileState& state) {
    ++state.totals.rejected;
    if (reject)
        reject({path, {place, reason}});
}

void ImportJob::showProgress(const QString& path, qint64 bytesOfFile, bool always) {
    progress.file = path;
    progress.bytesDone = qMin(bytesBefore + bytesOfFile, progress.bytesTotal);
    if (!tell || (!always && sinceTold.elapsed() < toldEvery))
        return;
    sinceTold.restart();
    tell(progress);
}

}  // namespace wirepane
