// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/import_command.h"

#include "backend/import/import_job.h"
#include "backend/import/mapping.h"
#include "backend/import/source_formats.h"
#include "backend/store/store_writer.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/console/interrupt.h"
#include "terminal/session/store_opening.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>

#include <atomic>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qint64 silentMs = 500;  // a shorter import shows no progress
constexpr int lastService = 255;

QString rejectionLine(const ImportRejection& rejected) {
    const auto& place = rejected.rejection.place;
    return QDir::toNativeSeparators(rejected.file) + (place ? u": "_s + sentence(*place) : QString()) +
           u": "_s + sentence(rejected.rejection.reason);
}

QString progressLine(const ImportProgress& progress) {
    const qint64 percent = progress.bytesTotal > 0 ? progress.bytesDone * 100 / progress.bytesTotal : 0;
    return u"%1 % – %2 items – %3"_s.arg(qMin<qint64>(percent, 100))
        .arg(progress.items)
        .arg(QDir::toNativeSeparators(progress.file));
}

QString formatsForHelp() {
    QStringList formats;
    for (const SourceFormat& format : sourceFormats())
        formats +=
            format.forms.isEmpty() ? format.name.toString() : u"%1 (%2)"_s.arg(format.name, format.forms);
    return formats.join(u", "_s);
}

int reportEnd(const ImportReport& report) {
    clearPassing();
    printLine(u"%1 taken in, %2 already there, %3 rejected"_s.arg(report.totals.takenIn)
                  .arg(report.totals.alreadyThere)
                  .arg(report.totals.rejected));
    if (report.filesRejected > 0)
        printNote(u"%1 of %2 files could not be read."_s.arg(report.filesRejected)
                      .arg(report.filesRead + report.filesRejected));
    if (report.nothingRecent())
        printNote(
            u"None of this news lies within the last 255 days. To see it, start the terminal with --now %1, "
            "or read as of that moment (Ctrl+G in the terminal)."_s.arg(
                QDateTime::fromSecsSinceEpoch(*report.newest).toString(Qt::ISODate)));
    if (report.failure)
        printNote(sentence(*report.failure));
    if (report.stopped)
        printNote(u"Stopped. The files taken in so far are kept; the same command goes on with the rest."_s);
    return importExitStatus(report);
}

}  // namespace

int runImport() {
    CommandArguments arguments(
        u"import"_s,
        u"Takes news into the store: %1, and with a mapping any table of news. Each file "
        "is taken in as a whole."_s.arg(formatsForHelp()));
    arguments.parser.addPositionalArgument(u"file"_s, u"A file to take in."_s, u"file..."_s);
    arguments.parser.addOption(
        {u"service"_s, u"The id of the news service that the news belongs to. Default: 1."_s, u"id"_s});
    arguments.parser.addOption(
        {u"mapping"_s, u"Reads the files as tables of news, as this file describes them."_s, u"file"_s});
    if (const auto status = arguments.read())
        return *status;
    ReadOptions options;
    options.service = static_cast<unsigned char>(arguments.number(u"service"_s, 1, 1, lastService));
    if (arguments.parser.isSet(u"mapping"_s)) {
        const Result<Mapping> mapping = Mapping::load(arguments.parser.value(u"mapping"_s));
        if (mapping)
            options.mapping = std::make_shared<const Mapping>(mapping.value());
        else
            arguments.fail(sentence(mapping.error()));
    }
    arguments.applyNow();
    if (arguments.rest().isEmpty())
        arguments.fail(u"import needs a file."_s);
    if (const auto status = arguments.fault())
        return *status;

    std::atomic<ImportJob*> running = nullptr;
    std::atomic<bool> interrupted = false;
    const OnInterrupt stopping([&running, &interrupted] {
        interrupted = true;
        if (ImportJob* job = running)
            job->stop();
    });
    const auto store = openOrMakeStore(arguments.storeFile(), indexingLines());
    if (!store) {
        printNote(sentence(store.error()));
        return exitUnusable;
    }
    StoreWriter writer(*store.value());
    ImportJob job(arguments.rest(), writer, options);
    job.onRejection([](const ImportRejection& rejected) { printNote(rejectionLine(rejected)); });
    QElapsedTimer started;
    started.start();
    job.onProgress([&started](const ImportProgress& progress) {
        if (started.elapsed() > silentMs)
            printPassing(progressLine(progress));
    });
    running = &job;
    if (interrupted)
        job.stop();
    const ImportReport report = job.run();
    running = nullptr;
    return reportEnd(report);
}

}  // namespace wirepane
