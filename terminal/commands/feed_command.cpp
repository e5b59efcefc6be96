// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/feed_command.h"

#include "backend/feed/feed_client.h"
#include "backend/feed/feed_connection.h"
#include "backend/lines/standard_channel.h"
#include "backend/store/store_writer.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/session/store_opening.h"

#include <QCoreApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int lastService = 255;
constexpr int triesAtFirst = 12;  // to reach a terminal, four a second
constexpr int retryMs = 1000;
constexpr int mostRetries = 60;  // of a store that another program keeps busy

void showRejection(const QString& place, const QString& reason) {
    printNote(place + u": "_s + reason);
}

int endWith(StandardChannel& channel, const ImportTotals& totals) {
    channel.send(u"%1 taken in, %2 already there, %3 rejected\n"_s.arg(totals.takenIn)
                     .arg(totals.alreadyThere)
                     .arg(totals.rejected)
                     .toLocal8Bit());
    noteLostOutput(channel.writeError());
    return totals.rejected > 0 ? exitPartly : exitDone;
}

// Lines from standard input into a store, a batch whenever nothing more is at hand.
class StoreFeed : public QObject, private SourceTaker {
public:
    StoreFeed(Database& database, StandardChannel& input, unsigned char service,
              FeedConnection::Answers answers)
        : store(database), writer(database), lines(&input, service, answers) {
        lines.setTaker(this);
        pumping.setSingleShot(true);
        connect(&pumping, &QTimer::timeout, this, &StoreFeed::pump);
    }

    ImportTotals totals;
    QString failure;

private:
    void sourceReady(FeedSource& source) override {
        if (source.awaitsPosition())
            source.resume(source.name().isEmpty() ? QString() : writer.positionOf(source.name()));
        pumpSoon();
    }
    void pumpSoon() {
        if (!pumping.isActive())
            pumping.start(retries > 0 ? retryMs : 0);
    }
    void pump() {
        if (lines.hasBatch() && !takeNext())
            return;
        if (lines.hasBatch())
            pumpSoon();
        else if (lines.isDone())
            QCoreApplication::exit(exitDone);
    }
    // False: the store cannot be written, and it is over.
    bool takeNext() {
        const Result<BatchOutcome> taken = takeBatch(*lines.batch(), lines.name(), writer);
        if (taken) {
            totals += taken.value().totals;
            for (const Rejection& rejection : taken.value().rejections)
                showRejection(sentence(*rejection.place), sentence(rejection.reason));
            lines.acknowledge(taken.value());
            retries = 0;
            return true;
        }
        ++retries;
        // No trying again mends a damaged store.
        if (store.damage())
            retries = mostRetries + 1;
        if (retries == 1)
            printNote(sentence(taken.error()));
        if (retries <= mostRetries)
            return true;
        failure = sentence(taken.error());
        QCoreApplication::exit(exitUnusable);
        return false;
    }

    Database& store;
    StoreWriter writer;
    FeedConnection lines;
    QTimer pumping;
    int retries = 0;
};

int feedStore(const QString& storeFile, unsigned char service, FeedConnection::Answers answers) {
    const auto store = openOrMakeStore(storeFile, indexingLines());
    if (!store) {
        printNote(sentence(store.error()));
        return exitUnusable;
    }
    StandardChannel channel;
    const StoreFeed feed(*store.value(), channel, service, answers);
    if (QCoreApplication::exec() != exitDone) {
        printNote(u"What was not confirmed has not been taken: %1"_s.arg(feed.failure));
        return exitUnusable;
    }
    return endWith(channel, feed.totals);
}

int feedTerminal(const QString& name, unsigned char service) {
    StandardChannel channel;
    FeedClient client(name, {QString(), service});
    bool hasEnded = false;
    bool isReached = false;  // an input without lines, too, is for a terminal that is there
    const auto endWhenDone = [&] {
        if (hasEnded && isReached && client.unacknowledged() == 0)
            QCoreApplication::exit(exitDone);
    };
    QObject::connect(&channel, &LineChannel::lineReceived, &client, [&](const QByteArray& line) {
        client.send(line);
        channel.setHeld(client.isFull());
    });
    QObject::connect(&channel, &LineChannel::lineTooLong, &client,
                     [] { printNote(u"A line is too long; it was left out."_s); });
    QObject::connect(&channel, &LineChannel::ended, &client, [&] {
        hasEnded = true;
        endWhenDone();
    });
    QObject::connect(&client, &FeedClient::connectionMade, &client, [&] {
        isReached = true;
        endWhenDone();
    });
    QObject::connect(&client, &FeedClient::acknowledged, &client, [&] {
        channel.setHeld(client.isFull());
        endWhenDone();
    });
    QObject::connect(&client, &FeedClient::rejected, &client, &showRejection);
    QObject::connect(&client, &FeedClient::connectionLost, &client,
                     [] { printNote(u"The connection is lost; it is tried again."_s); });
    QObject::connect(&client, &FeedClient::failed, &client, [](const QString& sentence) {
        printNote(sentence);
        QCoreApplication::exit(exitUnusable);
    });
    client.start(triesAtFirst);
    if (QCoreApplication::exec() != exitDone) {
        printNote(u"%1 lines were not confirmed."_s.arg(client.unacknowledged()));
        return exitUnusable;
    }
    return endWith(channel, client.totals());
}

}  // namespace

int runFeed() {
    CommandArguments arguments(u"feed"_s,
                               u"Takes news from standard input as it comes, one ninjs record a line, into "
                               "the store or a running terminal."_s);
    arguments.parser.addOptions({
        {u"service"_s, u"The id of the news service that the news belongs to. Default: 1."_s, u"id"_s},
        {u"to"_s, u"The feed name of a running terminal; without it, the store."_s, u"name"_s},
        {u"receipts"_s, u"Says on standard output what is on the disk, each time it is."_s},
    });
    if (const auto status = arguments.read())
        return *status;
    const auto service = static_cast<unsigned char>(arguments.number(u"service"_s, 1, 1, lastService));
    arguments.applyNow();
    if (!arguments.rest().isEmpty())
        arguments.fail(u"feed takes no argument \"%1\": news comes by standard input."_s.arg(
            arguments.rest().constFirst()));
    if (const auto status = arguments.fault())
        return *status;
    if (arguments.parser.isSet(u"to"_s))
        return feedTerminal(arguments.parser.value(u"to"_s), service);
    const bool receipts = arguments.parser.isSet(u"receipts"_s);
    return feedStore(arguments.storeFile(), service,
                     receipts ? FeedConnection::Answers::All : FeedConnection::Answers::None);
}

}  // namespace wirepane
