// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/feed_command.h"

#include "backend/feed/feed_client.h"
#include "backend/lines/standard_channel.h"
#include "backend/store/store_writer.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/commands/line_taking.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/session/store_opening.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int lastService = 255;
constexpr int triesAtFirst = 12;  // to reach a terminal, four a second
int feedStore(const QString& storeFile, unsigned char service, FeedConnection::Answers answers) {
    const auto store = openOrMakeStore(storeFile, indexingLines());
    if (!store) {
        printNote(sentence(store.error()));
        return exitUnusable;
    }
    StandardChannel channel;
    StoreWriter writer(*store.value());
    LineTaking lines({writer, [&writer](const QString& source) { return writer.positionOf(source); },
                      [&store] { return !store.value()->damage(); }},
                     channel, service, answers);
    return lines.run();
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
    QObject::connect(&client, &FeedClient::rejected, &client, &showLineRejection);
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
    return endOfLines(channel, client.totals());
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
