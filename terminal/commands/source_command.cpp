// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/source_command.h"

#include "backend/network/address_secrets.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/session/store_opening.h"
#include "terminal/sources/opml_exchange.h"
#include "terminal/sources/source_services.h"
#include "terminal/sources/source_texts.h"
#include "terminal/sources/source_values.h"
#include "terminal/translations/languages.h"

#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int lastService = 255;

// What an action works with.
struct Room {
    CommandArguments& arguments;
    QStringList rest;  // behind the action
    SourceDesk& desk;
    SourceTrial& trial;
    bool asJson = false;
};

struct Action {
    QLatin1StringView name;
    int least;  // arguments
    int most;
    int (*run)(Room& room);
};

int failed(const Error& error) {
    printNote(sentence(error));
    return exitUnusable;
}

// Waits for an answer that comes from the event loop, or has come already.
template <class Answer>
Answer awaited(const std::function<void(const std::function<void(const Answer&)>&)>& ask) {
    QEventLoop loop;
    std::optional<Answer> answer;
    ask([&](const Answer& came) {
        answer.emplace(came);
        loop.quit();
    });
    if (!answer)
        loop.exec();
    return *answer;
}

int finish(const Done& done) {
    return done ? exitDone : failed(done.error());
}

void printValue(const QJsonObject& value) {
    printLine(QString::fromUtf8(QJsonDocument(value).toJson(QJsonDocument::Compact)));
}

void printSource(const ListedSource& listed, bool asJson) {
    if (asJson) {
        printValue(valueOf(listed));
        return;
    }
    const SourceRow row = rowOf(listed, std::nullopt, QDateTime::currentSecsSinceEpoch());
    printLine(
        QStringList{listed.source.name, row.title, shownAddress(listed.source.address), row.state, row.last}
            .join(u"  "_s));
}

int list(Room& room) {
    for (const ListedSource& listed : room.desk.sources())
        printSource(listed, room.asJson);
    if (room.desk.sources().empty())
        printNote(u"The list has no source."_s);
    return exitDone;
}

// The value of an option that the definition knows by the same name; the definition checks it.
void putOptions(const CommandArguments& arguments, QJsonObject& definition) {
    for (const QString& option : {u"title"_s, u"kind"_s, u"mapping"_s, u"category"_s, u"language"_s,
                                  u"authority"_s, u"certificate"_s}) {
        if (arguments.parser.isSet(option))
            definition.insert(option, arguments.parser.value(option));
    }
    if (arguments.parser.isSet(u"category"_s))
        definition.insert(u"categoryRule"_s, u"always"_s);
    if (arguments.parser.isSet(u"certificate-key"_s))
        definition.insert(u"certificateKey"_s, arguments.parser.value(u"certificate-key"_s));
    const QString signIn = arguments.parser.value(u"sign-in"_s);
    if (signIn.isEmpty())
        return;
    definition.insert(u"authorisation"_s, signIn.section(u':', 0, 0));
    definition.insert(u"field"_s, signIn.section(u':', 1));
    definition.insert(u"secret"_s,
                      u"file:"_s + QFileInfo(arguments.parser.value(u"secret-file"_s)).absoluteFilePath());
}

Result<NetworkSource> defined(CommandArguments& arguments, const SplitAddress& split) {
    QJsonObject definition = typedDefinition(split);
    definition.insert(u"service"_s, qint64(arguments.number(u"service"_s, ownService, 1, lastService)));
    definition.insert(u"interval"_s,
                      qint64(arguments.number(u"interval"_s, 0, shortestInterval, longestInterval)));
    putOptions(arguments, definition);
    return networkSource(definition);
}

SplitAddress typedAddress(const Room& room) {
    return withoutSecrets(QUrl::fromUserInput(room.rest.constFirst(), QDir::currentPath()));
}

int add(Room& room) {
    const SplitAddress split = typedAddress(room);
    const auto source = defined(room.arguments, split);
    if (const auto status = room.arguments.fault())
        return *status;
    if (!source)
        return failed(source.error());
    const auto added = awaited<Result<QString>>(
        [&](const SourceDesk::Added& told) { room.desk.add(source.value(), split.secret, told); });
    if (!added)
        return failed(added.error());
    printLine(added.value());
    return exitDone;
}

void printTrial(const TrialReport& report) {
    for (const TrialItem& item : report.first)
        printLine(
            u"%1  %2  %3"_s.arg(QDateTime::fromSecsSinceEpoch(item.time).toString(u"yyyy-MM-dd HH:mm"_s),
                                item.category, item.title));
    for (const FeedLink& link : report.links)
        printLine(link.address.toString() + u"  "_s + link.title);
    if (!report.title.isEmpty())
        printNote(u"The feed calls itself \"%1\"."_s.arg(report.title));
    if (report.fitting)
        printNote(u"It is a table that the mapping %1 fits."_s.arg(report.fitting->mapping));
    if (!report.links.empty())
        printNote(u"This is a page; it names %1 feeds of its own."_s.arg(report.links.size()));
    else if (!report.fault)
        printNote(
            u"%1 read, %2 rejected, %3 too old"_s.arg(report.items).arg(report.rejected).arg(report.left));
    if (report.reason)
        printNote(sentence(*report.reason));
}

// A source of the list by its name or title, or an address as `add` takes it.
int test(Room& room) {
    const auto& sources = room.desk.sources();
    const QString& named = room.rest.constFirst();
    const auto isCalled = [&](const QString NetworkSource::*by) {
        return std::find_if(sources.begin(), sources.end(), [&](const ListedSource& each) {
            return (each.source.*by).compare(named, Qt::CaseInsensitive) == 0;
        });
    };
    const auto byName = isCalled(&NetworkSource::name);
    const auto listed = byName != sources.end() ? byName : isCalled(&NetworkSource::title);
    const SplitAddress split = listed != sources.end() ? SplitAddress() : typedAddress(room);
    const auto source =
        listed != sources.end() ? Result<NetworkSource>(listed->source) : defined(room.arguments, split);
    if (const auto status = room.arguments.fault())
        return *status;
    if (!source)
        return failed(source.error());
    const auto report = awaited<TrialReport>(
        [&](const SourceTrial::Told& told) { room.trial.start(source.value(), split.secret, told); });
    if (room.asJson)
        printValue(valueOf(report));
    else
        printTrial(report);
    if (report.fault)
        return failed(*report.fault);
    return report.items == 0 && report.links.empty() ? exitPartly : exitDone;
}

int pause(Room& room) {
    return finish(awaited<Done>(
        [&](const SourceDesk::Finished& told) { room.desk.pause(room.rest.constFirst(), true, told); }));
}

int resume(Room& room) {
    return finish(awaited<Done>(
        [&](const SourceDesk::Finished& told) { room.desk.pause(room.rest.constFirst(), false, told); }));
}

int remove(Room& room) {
    return finish(awaited<Done>(
        [&](const SourceDesk::Finished& told) { room.desk.remove(room.rest.constFirst(), told); }));
}

// Places count from 1, as people do.
int move(Room& room) {
    bool isNumber = false;
    const int place = room.rest[1].toInt(&isNumber);
    if (!isNumber || place < 1) {
        room.arguments.fail(u"A place is a number from 1 on, not \"%1\"."_s.arg(room.rest[1]));
        return *room.arguments.fault();
    }
    return finish(awaited<Done>(
        [&](const SourceDesk::Finished& told) { room.desk.move(room.rest.constFirst(), place - 1, told); }));
}

int importList(Room& room) {
    const auto read = readOpmlFile(room.rest.constFirst());
    if (!read)
        return failed(read.error());
    const auto added =
        awaited<ListedFeedsAdded>([&](const std::function<void(const ListedFeedsAdded&)>& told) {
            addListedFeeds(room.desk, read.value(), told);
        });
    printLine(u"%1 added, paused; %2 in the list already; %3 left out"_s.arg(added.added)
                  .arg(added.known)
                  .arg(added.leftOut));
    return added.fault ? failed(*added.fault) : exitDone;
}

int exportList(Room& room) {
    return finish(writeOpmlFile(room.rest.constFirst(), room.desk.sources()));
}

constexpr std::array actions{
    Action{"list"_L1, 0, 0, &list},         Action{"add"_L1, 1, 1, &add},
    Action{"test"_L1, 1, 1, &test},         Action{"pause"_L1, 1, 1, &pause},
    Action{"resume"_L1, 1, 1, &resume},     Action{"remove"_L1, 1, 1, &remove},
    Action{"move"_L1, 2, 2, &move},         Action{"import"_L1, 1, 1, &importList},
    Action{"export"_L1, 1, 1, &exportList},
};

void addOptions(QCommandLineParser& parser) {
    parser.addPositionalArgument(
        u"action"_s,
        u"list; add ADDRESS; test NAME, TITLE or ADDRESS; pause, resume or remove NAME; move NAME PLACE; "
        "import or export FILE (OPML)."_s,
        u"action [argument...]"_s);
    parser.addOptions({
        {u"json"_s, u"list, test: prints JSON, an object a line."_s},
        {u"title"_s, u"add: how the source is called."_s, u"text"_s},
        {u"kind"_s, u"add: auto, feed, ninjs, newsml, table, events or websocket. Default: auto."_s,
         u"kind"_s},
        {u"mapping"_s, u"add: of a table: a mapping file, or one of the built-in mappings."_s, u"file"_s},
        {u"service"_s, u"add: the news service that its news belongs to. Default: one of its own."_s,
         u"id"_s},
        {u"category"_s, u"add: the category of all its news."_s, u"name"_s},
        {u"language"_s, u"add: the language that is asked for."_s, u"code"_s},
        {u"interval"_s, u"add: seconds between two requests. Default: adapts to how often news comes."_s,
         u"seconds"_s},
        {u"sign-in"_s, u"add: basic, bearer or header:NAME, with the secret in --secret-file."_s, u"form"_s},
        {u"secret-file"_s, u"add: the file with the secret; of the user alone (mode 0600)."_s, u"file"_s},
        {u"authority"_s, u"add: the certificate of the authority that is trusted."_s, u"file"_s},
        {u"certificate"_s, u"add: the certificate that this program shows."_s, u"file"_s},
        {u"certificate-key"_s, u"add: its key."_s, u"file"_s},
    });
}

}  // namespace

int runSource() {
    CommandArguments arguments(u"source"_s,
                               u"Shows and changes the list of sources over the network, also while a "
                               "terminal reads it."_s);
    addOptions(arguments.parser);
    if (const auto status = arguments.read())
        return *status;
    const QStringList rest = arguments.rest();
    const QString name = rest.value(0);
    const auto* action =
        std::find_if(actions.begin(), actions.end(), [&](const Action& each) { return each.name == name; });
    if (action == actions.end() || rest.size() - 1 < action->least || rest.size() - 1 > action->most)
        arguments.fail(u"source takes an action with its arguments, not \"%1\"."_s.arg(rest.join(u' ')));
    if (arguments.parser.isSet(u"sign-in"_s) != arguments.parser.isSet(u"secret-file"_s))
        arguments.fail(u"--sign-in and --secret-file go together."_s);
    arguments.applyNow();
    if (const auto status = arguments.fault())
        return *status;
    if (const auto made = openOrMakeStore(arguments.storeFile(), indexingLines()); !made)
        return failed(made.error());
    Languages texts;
    texts.use(u"en"_s);
    SourceServices services(arguments.storeFile());
    SourceDesk& desk = services.desk();
    if (const Done read = awaited<Done>([&](const SourceDesk::Finished& told) { desk.read(told); }); !read)
        return failed(read.error());
    Room room{arguments, rest.mid(1), desk, services.trial(), arguments.parser.isSet(u"json"_s)};
    return action->run(room);
}

}  // namespace wirepane
