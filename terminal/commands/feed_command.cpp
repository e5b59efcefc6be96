// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/feed_command.h"

#include "backend/feed/feed_client.h"
#include "backend/feed/feed_connection.h"
#include "backend/feed/line_source.h"
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

// Lines from standard input into a store, a portion whenever nothing more is at hand.
class StoreFeed : public QObject {
public:
    StoreFeed(Database& database, StandardChannel& input, unsigned char service, bool receipts)
        : store(database), writer(database), channel(input), lines(service) {
        lines.onHello([this, receipts](const FeedHello& hello) {
            const Result<QString> position = writer.positionOf(hello.source);
            if (receipts && position)
                channel.send(positionLine(position.value()));
        });
        lines.onReceipt([this, receipts](const LineSource::Receipt& receipt) {
            totals += receipt.outcome.totals;
            for (const Rejection& rejection : receipt.outcome.rejections)
                showRejection(sentence(*rejection.place), sentence(rejection.reason));
            if (receipts)
                channel.send(receiptLine(receipt));
            channel.setHeld(lines.isFull());
        });
        pumping.setSingleShot(true);
        connect(&pumping, &QTimer::timeout, this, &StoreFeed::pump);
        connect(&channel, &LineChannel::lineReceived, this, [this](const QByteArray& line) {
            lines.add(line);
            channel.setHeld(lines.isFull());
            pumpSoon();
        });
        connect(&channel, &LineChannel::lineTooLong, this, [this] {
            lines.addRejected(u"The line is too long."_s);
            pumpSoon();
        });
        connect(&channel, &LineChannel::ended, this, [this] {
            hasEnded = true;
            pumpSoon();
        });
    }

    ImportTotals totals;
    QString failure;

private:
    void pumpSoon() {
        if (!pumping.isActive())
            pumping.start(retries > 0 ? retryMs : 0);
    }
    void pump() {
        if (lines.hasPortion()) {
            const Result<PortionOutcome> taken = takePortion(lines, writer);
            if (taken)
                lines.settle(taken.value());
            retries = taken ? 0 : retries + 1;
            // No trying again mends a damaged store.
            if (!store.damage().isEmpty())
                retries = mostRetries + 1;
            if (retries == 1)
                printNote(sentence(taken.error()));
            if (retries > mostRetries) {
                failure = sentence(taken.error());
                QCoreApplication::exit(exitUnusable);
                return;
            }
        }
        if (lines.hasPortion())
            pumpSoon();
        else if (hasEnded)
            QCoreApplication::exit(exitDone);
    }

    Database& store;
    StoreWriter writer;
    StandardChannel& channel;
    LineSource lines;
    QTimer pumping;
    int retries = 0;
    bool hasEnded = false;
};

int feedStore(const QString& storeFile, unsigned char service, bool receipts) {
    const auto store = openOrMakeStore(storeFile, indexingLines());
    if (!store) {
        printNote(sentence(store.error()));
        return exitUnusable;
    }
    StandardChannel channel;
    const StoreFeed feed(*store.value(), channel, service, receipts);
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
        if (hasEnded && isReached && client.unconfirmed() == 0)
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
    QObject::connect(&client, &FeedClient::confirmed, &client, [&] {
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
        printNote(u"%1 lines were not confirmed."_s.arg(client.unconfirmed()));
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
    return arguments.parser.isSet(u"to"_s)
               ? feedTerminal(arguments.parser.value(u"to"_s), service)
               : feedStore(arguments.storeFile(), service, arguments.parser.isSet(u"receipts"_s));
}

}  // namespace wirepane
