// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/search_command.h"

#include "backend/search/news_search.h"
#include "backend/store/store_file.h"
#include "backend/store/store_reader.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/commands/console.h"
#include "terminal/commands/exit_status.h"

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

constexpr int lastService = 255;

void addOptions(QCommandLineParser& parser) {
    parser.addPositionalArgument(u"keyword"_s, u"What a story must hold; plain text."_s, u"keyword..."_s);
    parser.addOptions({
        {u"service"_s, u"Searches this news service only."_s, u"id"_s},
        {u"title"_s, u"Searches titles only."_s},
        {u"story"_s, u"Searches stories only."_s},
        {u"any"_s, u"One keyword is enough."_s},
        {u"symbol"_s, u"Only news that names this symbol, such as 16:2330; may be repeated."_s,
         u"market:code"_s},
        {u"limit"_s, u"Prints so many at most, the newest."_s, u"number"_s},
        {u"json"_s, u"Prints a JSON object per line."_s},
    });
}

CSymbolInfo symbolOf(const QString& text, CommandArguments& arguments) {
    bool isNumber = false;
    const uint market = text.section(u':', 0, 0).toUInt(&isNumber);
    const QString code = text.section(u':', 1);
    if (!isNumber || market > lastService || code.isEmpty())
        arguments.fail(u"\"%1\" is not a symbol such as 16:2330."_s.arg(text));
    return {static_cast<unsigned char>(market), code};
}

CSearch conditionOf(CommandArguments& arguments) {
    const QCommandLineParser& parser = arguments.parser;
    CSearch condition;
    const QStringList keywords = arguments.rest();
    condition.keywords.assign(keywords.begin(), keywords.end());
    condition.method = parser.isSet(u"any"_s) ? 2 : 1;
    condition.scope = 2;
    if (parser.isSet(u"title"_s) != parser.isSet(u"story"_s))
        condition.scope = parser.isSet(u"title"_s) ? 0 : 1;
    for (const QString& symbol : parser.values(u"symbol"_s))
        condition.symbols.push_back(symbolOf(symbol, arguments));
    if (keywords.isEmpty())
        arguments.fail(u"search needs a keyword."_s);
    return condition;
}

bool isNewer(const CHeadlineTable& a, const CHeadlineTable& b) {
    return a.time != b.time ? a.time > b.time : a.sequence > b.sequence;
}

// Newest first, over all services; nothing when the store cannot be read.
std::optional<std::vector<CHeadlineTable>> findAll(Database& store,
                                                   const std::vector<unsigned char>& services,
                                                   const CSearch& condition) {
    NewsSearch search(store);
    std::vector<CHeadlineTable> all;
    for (const unsigned char service : services) {
        const auto found = search.find(service, condition);
        if (!found)
            return std::nullopt;
        all.insert(all.end(), found->begin(), found->end());
    }
    std::stable_sort(all.begin(), all.end(), isNewer);
    return all;
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
    for (std::size_t i = 0; i < std::min(found.size(), most); ++i) {
        const auto headline = reader.headline(KeyOf(found[i]));
        const auto service = reader.service(found[i].service);
        if (headline)
            printRow(*headline, service ? service->shortName : QString::number(found[i].service), asJson);
    }
    if (found.empty())
        printNote(u"Nothing was found."_s);
    else if (found.size() > most)
        printNote(u"%1 were found; the newest %2 are shown."_s.arg(found.size()).arg(most));
    return exitDone;
}

}  // namespace

int runSearch() {
    CommandArguments arguments(u"search"_s, u"Prints the news that holds all the keywords, newest first."_s);
    addOptions(arguments.parser);
    if (const auto status = arguments.read())
        return *status;
    const CSearch condition = conditionOf(arguments);
    const auto service = static_cast<unsigned char>(arguments.number(u"service"_s, 0, 1, lastService));
    const std::int64_t most = arguments.number(u"limit"_s, std::numeric_limits<std::int64_t>::max(), 1,
                                               std::numeric_limits<int>::max());
    if (const auto status = arguments.fault())
        return *status;

    const QString file = arguments.storeFile();
    if (!QFileInfo::exists(file)) {
        printNote(u"There is no store %1."_s.arg(QDir::toNativeSeparators(file)));
        return exitUnusable;
    }
    const auto store = openStore(file);
    if (!store) {
        printNote(store.error());
        return exitUnusable;
    }
    Database& database = *store.value();
    const std::vector<unsigned char> services =
        service != 0 ? std::vector{service} : StoreReader(database).serviceIds();
    const auto found = findAll(database, services, condition);
    if (!found) {
        printNote(database.failure());
        return exitUnusable;
    }
    return printFound(database, *found, std::size_t(most), arguments.parser.isSet(u"json"_s));
}

}  // namespace wirepane
