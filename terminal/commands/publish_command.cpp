// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/publish_command.h"

#include "backend/import/import_job.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/commands/line_taking.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/console/interrupt.h"
#include "terminal/session/store_opening.h"
#include "terminal/session/user_stores.h"
#include "wire/publish_sink.h"

#include <QDir>
#include <QSysInfo>

#include <ctime>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int lastService = 255;
constexpr int beatMs = 1000;

struct PublishOptions {
    QString wire;
    QString storeFile;
    QStringList files;
    unsigned char service = 1;
    bool feed = false;
    bool receipts = false;
};

int endFor(const Error& error) {
    printNote(sentence(error));
    return exitUnusable;
}

// The days that number the news are the wire's, wherever an ingest point stands.
void liveIn(const QString& zone) {
    qputenv("TZ", zone.toUtf8());
    tzset();
}

int publishLines(const PublishOptions& options, PublishSink& sink, WireServer& server) {
    StandardChannel channel;
    QTimer beating;
    const QString point = QSysInfo::machineHostName();
    // One that fails is followed by another.
    QObject::connect(&beating, &QTimer::timeout, &beating, [&] { (void)server.beat(point); });
    beating.start(beatMs);
    LineTaking lines(
        {sink, [&server](const QString& source) { return server.positionOf(source); }, [] { return true; }},
        channel, options.service,
        options.receipts ? FeedConnection::Answers::All : FeedConnection::Answers::None);
    return lines.run();
}

int publishFiles(const PublishOptions& options, PublishSink& sink) {
    ReadOptions reading;
    reading.service = options.service;
    ImportJob job(options.files, sink, reading);
    job.onRejection([](const ImportRejection& rejected) {
        const auto& [place, reason] = rejected.rejection;
        const QString file = QDir::toNativeSeparators(rejected.file);
        printNote((place ? file + u": "_s + sentence(*place) : file) + u": "_s + sentence(reason));
    });
    const OnInterrupt stopping([&job] { job.stop(); });
    const ImportReport report = job.run();
    printLine(u"%1 published, %2 already there, %3 rejected"_s.arg(report.totals.takenIn)
                  .arg(report.totals.alreadyThere)
                  .arg(report.totals.rejected));
    if (report.failure)
        printNote(sentence(*report.failure));
    return importExitStatus(report);
}

int publish(const PublishOptions& options) {
    const Result<WireDriver*> driver = wireDriverFor(options.wire);
    if (!driver)
        return endFor(driver.error());
    const std::unique_ptr<WireServer> server = driver.value()->server(options.wire);
    const Result<WireHead> head = server->head();
    if (!head)
        return endFor(head.error());
    liveIn(head.value().zone);
    const auto store = openOrMakeStore(options.storeFile, indexingLines());
    if (!store)
        return endFor(store.error());
    PublishSink sink(*store.value(), *server);
    return options.feed ? publishLines(options, sink, *server) : publishFiles(options, sink);
}

}  // namespace

int runPublish() {
    CommandArguments arguments(u"publish"_s,
                               u"Takes news in for a wire: files, each as a whole, or lines from standard "
                               "input. All terminals of the wire show it."_s);
    arguments.parser.addPositionalArgument(u"file"_s, u"A file to publish."_s, u"[file...]"_s);
    arguments.parser.addOptions({
        {u"wire"_s, u"The wire: a name in the service file of its server's connections."_s, u"service"_s},
        {u"feed"_s, u"Publishes lines from standard input as they come, as \"wirepane feed\" takes them."_s},
        {u"receipts"_s, u"With --feed: says on standard output what is on the wire, each time it is."_s},
        {u"service"_s, u"The id of the news service that the news belongs to. Default: 1."_s, u"id"_s},
    });
    if (const auto status = arguments.read())
        return *status;
    PublishOptions options;
    options.wire = arguments.parser.value(u"wire"_s);
    options.files = arguments.rest();
    options.feed = arguments.parser.isSet(u"feed"_s);
    options.receipts = arguments.parser.isSet(u"receipts"_s);
    options.service = static_cast<unsigned char>(arguments.number(u"service"_s, 1, 1, lastService));
    options.storeFile = arguments.parser.isSet(u"store"_s) ? arguments.storeFile()
                                                           : storeOfWire(options.wire, WireStore::Ingest);
    if (options.wire.isEmpty())
        arguments.fail(u"publish needs --wire."_s);
    if (options.feed != options.files.isEmpty())
        arguments.fail(u"publish takes files, or --feed."_s);
    if (const auto status = arguments.fault())
        return *status;
    return publish(options);
}

}  // namespace wirepane
