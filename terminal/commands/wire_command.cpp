// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/wire_command.h"

#include "backend/store/copy_rule.h"
#include "backend/store/feed_positions.h"
#include "backend/store/store_file.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/session/user_stores.h"
#include "wire/news_digest.h"
#include "wire/wire_driver.h"
#include "wire/wire_position.h"

#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int lastService = 255;

struct WireOptions {
    QString wire;
    QString storeFile;
    QString zone;
    QString role;
    QList<int> services;
};

int endFor(const Error& error) {
    printNote(sentence(error));
    return exitUnusable;
}

int make(WireServer& server, const WireOptions& options) {
    if (const Done made = server.make(options.zone); !made)
        return endFor(made.error());
    printLine(u"The wire %1 is made; its days are those of %2."_s.arg(options.wire, options.zone));
    return exitDone;
}

int showStatus(WireServer& server, const WireOptions&) {
    const Result<WireHead> head = server.head();
    const Result<WireCare> care = head ? server.care() : Result<WireCare>(head.error());
    if (!care)
        return endFor(care.error());
    printLine(u"Epoch %1, form %2, days of %3"_s.arg(head.value().epoch)
                  .arg(head.value().format)
                  .arg(head.value().zone));
    printLine(u"%1 rows"_s.arg(head.value().last));
    for (const QString& point : care.value().points)
        printLine(u"Ingest point %1: last sign of life %2 s ago"_s.arg(point.section(u' ', 0, -2),
                                                                       point.section(u' ', -1)));
    if (care.value().isQuorum) {
        printLine(u"Safe: a commit is on several servers (%1)."_s.arg(care.value().synchronous));
        return exitDone;
    }
    printLine(u"Not safe: a commit is on one server alone."_s);
    return exitPartly;
}

QString lineOf(const DayDigest& day) {
    return u"service %1, day %2: %3 headlines, %4"_s.arg(day.service)
        .arg(day.day)
        .arg(day.count)
        .arg(static_cast<quint64>(day.digest), 16, 16, QChar(u'0'));
}

void showDifferences(const std::vector<DayDigest>& here, const std::vector<DayDigest>& there,
                     const QString& who) {
    for (const DayDigest& day : here) {
        if (std::find(there.begin(), there.end(), day) == there.end())
            printNote(who + u": "_s + lineOf(day));
    }
}

// The store stands where it stood before and after the look at the wire, or what differs says nothing.
int compare(WireServer& server, Database& store) {
    bool failed = false;
    FeedPositions positions(store);
    const Result<WirePosition> position = WirePosition::of(positions.of(wirePosition, failed));
    const Result<WireHead> head = server.head();
    const Result<std::vector<DayDigest>> ofWire = server.digests();
    NewsDigest digest(store);
    const auto ofStore = digest.ofDays();
    if (!position || !head || !ofWire)
        return endFor(!position ? position.error() : !head ? head.error() : ofWire.error());
    if (failed || !ofStore)
        return endFor(store.failure());
    if (position.value().sequence() != head.value().last) {
        printNote(u"The store is at row %1 of %2; it is to be compared when it is level."_s
                      .arg(position.value().sequence())
                      .arg(head.value().last));
        return exitPartly;
    }
    showDifferences(ofWire.value(), *ofStore, u"wire"_s);
    showDifferences(*ofStore, ofWire.value(), u"store"_s);
    const bool isAlike = ofWire.value() == *ofStore;
    printLine(isAlike ? u"The store holds what the wire does: %1 rows, %2 days of services."_s
                            .arg(head.value().last)
                            .arg(ofStore->size())
                      : u"The store differs from the wire."_s);
    return isAlike ? exitDone : exitPartly;
}

int verify(WireServer& server, const WireOptions& options) {
    const Result<QStringList> faults = server.faults();
    if (!faults)
        return endFor(faults.error());
    if (!faults.value().isEmpty()) {
        printNote(u"The wire does not follow on itself at row %1."_s.arg(faults.value().join(u", "_s)));
        return exitPartly;
    }
    const auto store = openStoreToRead(options.storeFile);
    return store ? compare(server, *store.value()) : endFor(store.error());
}

int entitle(WireServer& server, const WireOptions& options) {
    if (const Done entitled = server.entitle(options.role, options.services); !entitled)
        return endFor(entitled.error());
    printLine(u"%1 may read %2 services of the wire."_s.arg(options.role).arg(options.services.size()));
    return exitDone;
}

struct Action {
    QLatin1StringView name;
    int (*run)(WireServer& server, const WireOptions& options);
};

constexpr Action actions[] = {
    {"init"_L1, make}, {"status"_L1, showStatus}, {"verify"_L1, verify}, {"entitle"_L1, entitle}};

const Action* actionOf(const QStringList& rest) {
    const auto* const found = std::find_if(
        std::begin(actions), std::end(actions),
        [&rest](const Action& action) { return !rest.isEmpty() && rest.constFirst() == action.name; });
    return found == std::end(actions) ? nullptr : found;
}

QList<int> servicesOf(CommandArguments& arguments) {
    QList<int> services;
    for (const QString& text : arguments.parser.value(u"services"_s).split(u',', Qt::SkipEmptyParts)) {
        bool isNumber = false;
        const int service = text.toInt(&isNumber);
        if (!isNumber || service < 1 || service > lastService)
            arguments.fail(u"--services takes ids from 1 to 255, not \"%1\"."_s.arg(text));
        services += service;
    }
    return services;
}

void checkOptions(CommandArguments& arguments, const WireOptions& options) {
    const QStringList rest = arguments.rest();
    const Action* const action = actionOf(rest);
    if (action == nullptr || rest.size() > 1)
        arguments.fail(u"wire takes one of init, status, verify, entitle."_s);
    if (options.wire.isEmpty())
        arguments.fail(u"wire needs --service."_s);
    if (action != nullptr && action->run == entitle && options.role.isEmpty())
        arguments.fail(u"wire entitle needs --role."_s);
    if (!QTimeZone(options.zone.toUtf8()).isValid())
        arguments.fail(u"--zone takes a time zone such as Asia/Hong_Kong, not \"%1\"."_s.arg(options.zone));
}

}  // namespace

int runWire() {
    CommandArguments arguments(u"wire"_s,
                               u"Makes a wire and looks after it: init, status, verify, entitle."_s);
    arguments.parser.addPositionalArgument(u"action"_s, u"What to do."_s, u"action"_s);
    arguments.parser.addOptions({
        {u"service"_s, u"The wire: a name in the service file of its server's connections."_s, u"service"_s},
        {u"zone"_s, u"With init: whose days number the news. Default: this machine's."_s, u"zone"_s},
        {u"role"_s, u"With entitle: the role of the server that terminals connect as."_s, u"role"_s},
        {u"services"_s, u"With entitle: all services that it may read."_s, u"ids"_s},
    });
    if (const auto status = arguments.read())
        return *status;
    WireOptions options;
    options.wire = arguments.parser.value(u"service"_s);
    options.role = arguments.parser.value(u"role"_s);
    options.zone = arguments.parser.isSet(u"zone"_s) ? arguments.parser.value(u"zone"_s)
                                                     : QString::fromUtf8(QTimeZone::systemTimeZoneId());
    options.services = servicesOf(arguments);
    options.storeFile = arguments.parser.isSet(u"store"_s) ? arguments.storeFile()
                                                           : storeOfWire(options.wire, WireStore::Terminal);
    checkOptions(arguments, options);
    if (const auto status = arguments.fault())
        return *status;
    const Result<WireDriver*> driver = wireDriverFor(options.wire);
    if (!driver)
        return endFor(driver.error());
    return actionOf(arguments.rest())->run(*driver.value()->server(options.wire), options);
}

}  // namespace wirepane
