// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/replay_command.h"

#include "backend/feed/feed_name.h"
#include "backend/feed/replay.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/console/interrupt.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QProcess>
#include <QTemporaryDir>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr double fastest = 100000;
constexpr int progressMs = 500;
constexpr int triesWhileOpen = 12;  // four a second
constexpr int triesWhileOpening = 240;

struct Request {
    QString storeFile;
    QString target;
    QDate date;
    ReplayOptions options;
    bool opens = false;
};

Request requestFrom(CommandArguments& arguments) {
    const QCommandLineParser& parser = arguments.parser;
    arguments.applyNow();
    Request request{arguments.storeFile(), defaultFeedName, host_clock::today(), {}, false};
    if (parser.isSet(u"to"_s))
        request.target = parser.value(u"to"_s);
    if (parser.isSet(u"date"_s)) {
        request.date = QDate::fromString(parser.value(u"date"_s), Qt::ISODate);
        if (!request.date.isValid())
            arguments.fail(
                u"--date takes a day such as 2026-03-02, not \"%1\"."_s.arg(parser.value(u"date"_s)));
    }
    if (parser.isSet(u"from"_s)) {
        const QTime from = QTime::fromString(parser.value(u"from"_s), u"H:mm"_s);
        if (!from.isValid())
            arguments.fail(u"--from takes a time such as 9:00, not \"%1\"."_s.arg(parser.value(u"from"_s)));
        request.options.from = QDateTime(request.date, from).toSecsSinceEpoch();
    }
    if (parser.isSet(u"speed"_s)) {
        bool isNumber = false;
        request.options.speed = parser.value(u"speed"_s).toDouble(&isNumber);
        if (!isNumber || !(request.options.speed >= 0 && request.options.speed <= fastest))
            arguments.fail(u"--speed takes a number from 0 to %1, not \"%2\"."_s.arg(fastest).arg(
                parser.value(u"speed"_s)));
    }
    request.opens = parser.isSet(u"open"_s);
    if (request.opens && parser.isSet(u"to"_s))
        arguments.fail(u"--open and --to exclude each other."_s);
    request.options.asNew = parser.isSet(u"as-new"_s);
    request.options.run = u"replay:"_s + QUuid::createUuid().toString(QUuid::WithoutBraces);
    if (!arguments.rest().isEmpty())
        arguments.fail(u"replay takes no argument \"%1\"."_s.arg(arguments.rest().constFirst()));
    return request;
}

void showProgress(const Replay& replay, std::size_t all) {
    const QString moment = replay.moment() > QDateTime::currentSecsSinceEpoch() * 2
                               ? QString()
                               : QDateTime::fromSecsSinceEpoch(replay.moment()).toString(u"HH:mm:ss – "_s);
    printPassing(u"%1%2 of %3"_s.arg(moment).arg(replay.played()).arg(all));
}

int reportEnd(const FeedClient& client, bool asNew) {
    const ImportTotals& totals = client.totals();
    clearPassing();
    printLine(u"%1 taken in, %2 already there, %3 rejected"_s.arg(totals.takenIn)
                  .arg(totals.alreadyThere)
                  .arg(totals.rejected));
    if (totals.takenIn == 0 && totals.alreadyThere > 0 && !asNew)
        printNote(
            u"The terminal had all of this news. With --as-new it comes as news of the present moment."_s);
    return totals.rejected > 0 ? exitPartly : exitDone;
}

// Why a replay that a signal has ended is over.
int stopped() {
    clearPassing();
    printNote(u"Stopped."_s);
    return exitPartly;
}

int play(const Request& request, StoredDay& day, const OnEndSignal& ending) {
    FeedClient client(request.target, {request.options.run, 1});
    Replay replay(day, client, request.options);
    QObject::connect(&replay, &Replay::finished, &replay, [] { QCoreApplication::exit(exitDone); });
    const auto fail = [](const QString& sentence) {
        printNote(sentence);
        QCoreApplication::exit(exitUnusable);
    };
    QObject::connect(&replay, &Replay::failed, &replay, fail);
    QObject::connect(&client, &FeedClient::failed, &replay, fail);
    QObject::connect(
        &client, &FeedClient::rejected, &replay,
        [](const QString& place, const QString& reason) { printNote(place + u": "_s + reason); });
    QObject::connect(&client, &FeedClient::connectionLost, &replay,
                     [] { printNote(u"The connection is lost; it is tried again."_s); });
    // The day begins once somebody listens.
    QObject::connect(&client, &FeedClient::connectionMade, &replay, [&replay, begun = false]() mutable {
        if (!std::exchange(begun, true))
            replay.start();
    });
    QTimer progress;
    QObject::connect(&progress, &QTimer::timeout, &replay, [&] { showProgress(replay, day.size()); });
    progress.start(progressMs);
    // A terminal that is being opened takes its time.
    client.start(request.opens ? triesWhileOpening : triesWhileOpen);
    const int status = QCoreApplication::exec();
    if (ending.hasCome())
        return stopped();
    return status == exitDone ? reportEnd(client, request.options.asNew) : status;
}

Done makeStoreLike(const StoredDay& day, const QString& file) {
    const auto store = openStore(file);
    return store ? day.copyCatalogues(*store.value()) : Done(store.error());
}

// The terminal lives on after the last headline, until its user closes it.
int playInOwnTerminal(Request request, StoredDay& day, const OnEndSignal& ending) {
    const QTemporaryDir folder;
    request.target = folder.filePath(u"feed"_s);
    const std::int64_t begin = std::max(request.options.from, day.timeOf(0));
    const QString storeFile = folder.filePath(u"replay.wirepane"_s);
    // Views read the names of categories when they open.
    if (const Done made = makeStoreLike(day, storeFile); !made) {
        printNote(sentence(made.error()));
        return exitUnusable;
    }
    QProcess terminal;
    terminal.setProcessChannelMode(QProcess::ForwardedChannels);
    terminal.start(QCoreApplication::applicationFilePath(),
                   {u"--store"_s, storeFile, u"--config"_s, folder.filePath(u"config"_s), u"--now"_s,
                    QDateTime::fromSecsSinceEpoch(begin).toString(Qt::ISODate), u"--no-sample"_s, u"--feed"_s,
                    request.target});
    if (!terminal.waitForStarted()) {
        printNote(u"The terminal cannot be started: %1."_s.arg(terminal.errorString()));
        return exitUnusable;
    }
    QObject::connect(&terminal, &QProcess::finished, &terminal, [] { QCoreApplication::exit(exitDone); });
    const int status = play(request, day, ending);
    if (status != exitUnusable && !ending.hasCome() && terminal.state() != QProcess::NotRunning)
        QCoreApplication::exec();
    if (status == exitUnusable || ending.hasCome())
        terminal.terminate();
    terminal.waitForFinished(-1);
    return status;
}

}  // namespace

int runReplay() {
    CommandArguments arguments(u"replay"_s,
                               u"Plays the news of a day in the store into a running terminal, as if it came "
                               "live."_s);
    arguments.parser.addOptions({
        {u"date"_s, u"The day, such as 2026-03-02. Default: the present one"_s, u"day"_s},
        {u"from"_s,
         u"Where the clock of the replay starts; earlier news comes at once. Default: at the first news"_s,
         u"time"_s},
        {u"speed"_s, u"Seconds of the day in a second; 0: as fast as it goes. Default: 60."_s, u"number"_s},
        {u"to"_s, u"The feed name of the terminal. Default: %1."_s.arg(defaultFeedName), u"name"_s},
        {u"open"_s, u"Opens a terminal of its own for the replay, on a store that is thrown away."_s},
        {u"as-new"_s, u"Plays every item as news of this moment, beside what the terminal has."_s},
    });
    if (const auto status = arguments.read())
        return *status;
    const Request request = requestFrom(arguments);
    if (const auto status = arguments.fault())
        return *status;
    const auto day = StoredDay::open(request.storeFile, request.date);
    if (!day) {
        printNote(sentence(day.error()));
        return exitUnusable;
    }
    if (day.value()->size() == 0) {
        printNote(u"%1 holds no news of %2."_s.arg(request.storeFile, request.date.toString(Qt::ISODate)));
        return exitUnusable;
    }
    const OnEndSignal ending([] { QCoreApplication::exit(exitPartly); });
    return request.opens ? playInOwnTerminal(request, *day.value(), ending)
                         : play(request, *day.value(), ending);
}

}  // namespace wirepane
