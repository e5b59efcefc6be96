// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/import_command.h"

#include "backend/import/import_job.h"
#include "backend/import/mapping.h"
#include "backend/import/source_formats.h"
#include "backend/store/staged_import.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/console/interrupt.h"
#include "terminal/session/import_report.h"
#include "terminal/session/store_opening.h"
#include "terminal/translations/shown_text.h"

#include <QCommandLineOption>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>

#include <atomic>
#include <functional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qint64 silentMs = 500;  // a shorter import shows no progress
constexpr int lastService = 255;

// Errors as a person reads them, or as values for a program.
using Wording = std::function<QString(const Error&)>;

Error rejectionOf(const ImportRejection& rejected) {
    const auto& [place, reason] = rejected.rejection;
    const QString file = QDir::toNativeSeparators(rejected.file);
    return place ? makeError<import_report::itemRejected>(file, *place, reason)
                 : makeError<import_report::fileRejected>(file, reason);
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

// Others can read what was taken in meanwhile; whoever opens the store next goes on with what is left here.
void fillIndex(StagedImport& staged, Database& store, const std::atomic<bool>& interrupted) {
    const std::int64_t total = unindexedHeadlines(store).value_or(0);
    QElapsedTimer started;
    started.start();
    for (Result<bool> isMore = true; isMore && isMore.value() && !interrupted; isMore = staged.indexSome()) {
        const std::int64_t left = unindexedHeadlines(store).value_or(0);
        if (started.elapsed() > silentMs && total > 0)
            printPassing(
                u"Search index: %1 % – %2 headlines to go"_s.arg((total - left) * 100 / total).arg(left));
    }
    clearPassing();
}

int reportEnd(const ImportReport& report, const Wording& worded) {
    clearPassing();
    printLine(worded(makeError<import_report::importTotals>(report.totals.takenIn, report.totals.alreadyThere,
                                                            report.totals.rejected)));
    if (report.filesRejected > 0)
        printNote(worded(makeError<import_report::filesNotRead>(report.filesRejected,
                                                                report.filesRead + report.filesRejected)));
    if (report.nothingRecent())
        printNote(worded(makeError<import_report::nothingRecent>(
            QDateTime::fromSecsSinceEpoch(*report.newest).toString(Qt::ISODate))));
    if (report.failure)
        printNote(worded(*report.failure));
    if (report.stopped)
        printNote(worded(makeError<import_report::importStopped>()));
    return importExitStatus(report);
}

void addOptions(QCommandLineParser& parser, QCommandLineOption& asValues) {
    parser.addPositionalArgument(u"file"_s, u"A file to take in."_s, u"file..."_s);
    parser.addOption(
        {u"service"_s, u"The id of the news service that the news belongs to. Default: 1."_s, u"id"_s});
    parser.addOption(
        {u"mapping"_s, u"Reads the files as tables of news, as this file describes them."_s, u"file"_s});
    asValues.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(asValues);
}

ReadOptions readOptions(CommandArguments& arguments) {
    ReadOptions options;
    options.service = static_cast<unsigned char>(arguments.number(u"service"_s, 1, 1, lastService));
    if (arguments.parser.isSet(u"mapping"_s)) {
        const Result<Mapping> mapping = Mapping::load(arguments.parser.value(u"mapping"_s));
        if (mapping)
            options.mapping = std::make_shared<const Mapping>(mapping.value());
        else
            arguments.fail(sentence(mapping.error()));
    }
    return options;
}

}  // namespace

int runImport() {
    CommandArguments arguments(
        u"import"_s,
        u"Takes news into the store: %1, and with a mapping any table of news. Each file "
        "is taken in as a whole."_s.arg(formatsForHelp()));
    // For the terminal, which has its own words for it.
    QCommandLineOption asValues(u"values"_s);
    addOptions(arguments.parser, asValues);
    if (const auto status = arguments.read())
        return *status;
    const Wording worded = arguments.parser.isSet(asValues) ? valueLine : sentence;
    const ReadOptions options = readOptions(arguments);
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
        printNote(worded(store.error()));
        return exitUnusable;
    }
    StagedImport staged(*store.value());
    staged.onWaiting([&interrupted] {
        printPassing(u"Another import into this store is under way; waiting for its end."_s);
        return !interrupted;
    });
    ImportJob job(arguments.rest(), staged, options);
    job.onRejection([&worded](const ImportRejection& rejected) { printNote(worded(rejectionOf(rejected))); });
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
    const int status = reportEnd(report, worded);
    // The terminal does so itself.
    if (!arguments.parser.isSet(asValues))
        fillIndex(staged, *store.value(), interrupted);
    return status;
}

}  // namespace wirepane
