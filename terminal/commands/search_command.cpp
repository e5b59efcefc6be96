// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/search_command.h"

#include "backend/store/store_file.h"
#include "backend/store/store_reader.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/commands/news_query.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

void addOptions(QCommandLineParser& parser) {
    addQueryOptions(parser);
    parser.addPositionalArgument(u"keyword"_s, u"What a story must hold; plain text."_s, u"keyword..."_s);
    parser.addOptions({
        {u"limit"_s, u"Prints so many at most, the newest."_s, u"number"_s},
        {u"json"_s, u"Prints a JSON object per line."_s},
    });
}

void printRow(const CHeadline& headline, const QString& service, bool asJson) {
    const QDateTime time = QDateTime::fromSecsSinceEpoch(headline.time);
    if (!asJson) {
        printLine(u"%1  %2  %3"_s.arg(time.toString(u"yyyy-MM-dd HH:mm"_s), service, headline.title));
        return;
    }
    const QJsonObject row{{u"service"_s, headline.service},
                          {u"time"_s, time.toUTC().toString(Qt::ISODate)},
                          {u"sequence"_s, headline.sequence},
                          {u"title"_s, headline.title}};
    printLine(QString::fromUtf8(QJsonDocument(row).toJson(QJsonDocument::Compact)));
}

int printFound(Database& store, const std::vector<CHeadlineTable>& found, std::size_t most, bool asJson) {
    StoreReader reader(store);
    for (std::size_t i = 0; i < std::min(found.size(), most) && !store.damage(); ++i) {
        const auto headline = reader.headline(keyOf(found[i]));
        const auto service = reader.service(found[i].service);
        if (headline)
            printRow(*headline, service ? service->shortName : QString::number(found[i].service), asJson);
    }
    if (store.damage()) {
        printNote(sentence(*store.damage()));
        return exitUnusable;
    }
    if (found.empty())
        printNote(u"Nothing was found."_s);
    else if (found.size() > most)
        printNote(u"More than %1 were found; the newest are shown."_s.arg(most));
    return exitDone;
}

}  // namespace

int runSearch() {
    CommandArguments arguments(u"search"_s, u"Prints the news that holds all the keywords, newest first."_s);
    addOptions(arguments.parser);
    if (const auto status = arguments.read())
        return *status;
    arguments.applyNow();
    const CSearch condition = conditionOf(arguments, arguments.rest());
    if (condition.keywords.empty())
        arguments.fail(u"search needs a keyword."_s);
    const auto service = static_cast<unsigned char>(arguments.number(u"service"_s, 0, 1, lastNewsService));
    const std::int64_t most = arguments.number(u"limit"_s, std::numeric_limits<std::int64_t>::max(), 1,
                                               std::numeric_limits<int>::max());
    if (const auto status = arguments.fault())
        return *status;

    const QString file = arguments.storeToRead();
    if (!QFileInfo::exists(file)) {
        printNote(u"There is no store %1."_s.arg(QDir::toNativeSeparators(file)));
        return exitUnusable;
    }
    const auto store = openStoreToRead(file, {.onIndexing = indexingLines()});
    if (!store) {
        printNote(sentence(store.error()));
        return exitUnusable;
    }
    Database& database = *store.value();
    const std::vector<unsigned char> services =
        service != 0 ? std::vector{service} : StoreReader(database).serviceIds();
    // One more than is shown tells that there are more.
    const auto found = findAll(database, services, condition, {std::size_t(most) + 1, latestOf(arguments)});
    if (!found || database.damage()) {
        printNote(sentence(database.damage().value_or(database.failure())));
        return exitUnusable;
    }
    noteBacklog(database);
    return printFound(database, *found, std::size_t(most), arguments.parser.isSet(u"json"_s));
}

}  // namespace wirepane
