// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/export_command.h"

#include "backend/search/news_search.h"
#include "backend/store/embedded_back_end.h"
#include "backend/store/row_file.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "host/views/news_module.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/commands/news_query.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/console/interrupt.h"
#include "terminal/session/module_location.h"
#include "terminal/translations/languages.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <atomic>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString dayForm = u"yyyyMMdd"_s;

struct ExportOptions {
    OutputTarget target;
    bool pdf = false;
    QDate day;          // of the news, without keywords
    CSearch condition;  // with keywords
    std::vector<unsigned char> services;
    std::int64_t latest = 0;  // what is dated later is not there yet
};

void addOptions(QCommandLineParser& parser) {
    parser.addPositionalArgument(
        u"file"_s,
        u"The file to write: by the ending of its name pages (.pdf), rows (.csv, .json, .ndjson) or text."_s);
    parser.addPositionalArgument(u"keyword"_s, u"Writes the news that holds these; else that of a day."_s,
                                 u"[keyword...]"_s);
    addQueryOptions(parser);
    parser.addOptions({
        {u"day"_s, u"The day whose news is written. Default: the present day."_s, u"yyyymmdd"_s},
        {u"utf8"_s, u"Writes text as UTF-8; else in code page 950."_s},
        {u"paper"_s, u"The paper of pages. Default: A4."_s, u"name"_s},
        {u"lang"_s, u"The language of labels: en, zh-TW or zh-CN."_s, u"code"_s},
    });
}

ExportOptions optionsOf(CommandArguments& arguments) {
    const QCommandLineParser& parser = arguments.parser;
    ExportOptions options;
    const QStringList rest = arguments.rest();
    if (rest.isEmpty())
        arguments.fail(u"export needs a file."_s);
    options.target.file = rest.value(0);
    options.pdf = options.target.file.endsWith(u".pdf"_s, Qt::CaseInsensitive);
    options.target.type = parser.isSet(u"utf8"_s) ? NewsFileType::Utf8 : NewsFileType::CodePage950;
    options.target.wholeTitles = true;
    options.target.paper = parser.value(u"paper"_s);
    options.condition = conditionOf(arguments, rest.mid(1));
    options.latest = latestOf(arguments);
    options.day = host_clock::today();
    if (parser.isSet(u"day"_s))
        options.day = QDate::fromString(parser.value(u"day"_s), dayForm);
    if (!options.day.isValid())
        arguments.fail(u"\"%1\" is not a day such as 20260302."_s.arg(parser.value(u"day"_s)));
    if (parser.isSet(u"day"_s) && rest.size() > 1)
        arguments.fail(u"Name a day or keywords, not both."_s);
    if (parser.isSet(u"lang"_s) && !Languages::codes().contains(parser.value(u"lang"_s)))
        arguments.fail(u"There is no language \"%1\"."_s.arg(parser.value(u"lang"_s)));
    if (const auto service = arguments.number(u"service"_s, 0, 1, lastNewsService); service != 0)
        options.services = {static_cast<unsigned char>(service)};
    return options;
}

// The news of the day or of the search, newest first.
Result<std::vector<CHeadlineTable>> wantedNews(EmbeddedBackEnd& backEnd, const ExportOptions& options) {
    std::vector<unsigned char> services = options.services;
    if (services.empty())
        backEnd.BKQNEWS_bGetAllNewsService(services);
    if (!options.condition.keywords.empty()) {
        const auto store = openStoreToRead(backEnd.storePath());
        if (!store)
            return store.error();
        noteBacklog(*store.value());
        const auto found = NewsSearch(*store.value()).findOnce(services, options.condition, {});
        return found ? Result<std::vector<CHeadlineTable>>(*found) : store.value()->failure();
    }
    std::vector<CHeadlineTable> day;
    for (const unsigned char service : services)
        backEnd.BKQNEWS_iGetHeadlineTable(service, day, static_cast<int>(TableKind::ByDate),
                                          options.day.toString(dayForm));
    std::stable_sort(day.begin(), day.end(), [](const CHeadlineTable& a, const CHeadlineTable& b) {
        return a.time != b.time ? a.time > b.time : a.sequence > b.sequence;
    });
    return day;
}

int unusable(const QString& sentence) {
    printNote(sentence);
    return exitUnusable;
}

// Reads all that is going to be written: nothing is, where the store is damaged on the way.
bool isReadable(EmbeddedBackEnd& backEnd, const std::vector<CHeadlineTable>& wanted) {
    std::vector<CHeadline> headlines;
    CStory story;
    CNewsSymLst symbols;
    for (auto entry = wanted.begin(); entry != wanted.end() && !backEnd.storeDamage(); ++entry) {
        headlines.clear();
        backEnd.BKQNEWS_iGetHeadline(entry->service, headlines, {*entry});
        backEnd.BKQNEWS_bGetStory(story, *entry);
        backEnd.BKNEWS_GetSymbolListBySeqNo(symbols, *entry);
    }
    return !backEnd.storeDamage();
}

void tellDone(std::int64_t count, const QString& what, const QString& file) {
    printLine(u"%1 %2 in %3"_s.arg(count).arg(what, QDir::toNativeSeparators(file)));
}

int putOut(const std::vector<CHeadlineTable>& wanted, const ExportOptions& options) {
    const auto module = loadModule();
    if (!module)
        return unusable(sentence(module.error()));
    NewsModule& news = *module.value();
    const NewsOutcome outcome =
        options.pdf ? news.printEntries(wanted, options.target) : news.saveEntries(wanted, options.target);
    if (outcome.failed)
        return unusable(outcome.message);
    if (!outcome.message.isEmpty())
        printNote(outcome.message);
    tellDone(outcome.count, options.pdf ? u"pages"_s : u"bytes"_s, options.target.file);
    return exitDone;
}

int writeRows(EmbeddedBackEnd& backEnd, const std::vector<CHeadlineTable>& wanted, const QString& name,
              NewsRowForm form) {
    const auto store = openStoreToRead(backEnd.storePath());
    if (!store)
        return unusable(sentence(store.error()));
    std::atomic<bool> stopped = false;
    const OnInterrupt stopping([&stopped] { stopped = true; });
    const auto progress = passingShare(u"Writing"_s);
    const RowFileOutcome outcome = writeRowFile(*store.value(), wanted, form, name, [&](int done) {
        progress(done, std::int64_t(wanted.size()));
        return !stopped;
    });
    switch (outcome.end) {
        case RowFileOutcome::End::Written:
            break;
        case RowFileOutcome::End::Stopped:
            printNote(u"Stopped; no file was written."_s);
            return exitPartly;
        case RowFileOutcome::End::NotWritten:
            return unusable(
                u"%1 cannot be written: %2."_s.arg(QDir::toNativeSeparators(name), outcome.reason));
        case RowFileOutcome::End::Unreadable:
            return unusable(sentence(store.value()->damage().value_or(store.value()->failure())));
    }
    progress(std::int64_t(wanted.size()), std::int64_t(wanted.size()));
    tellDone(outcome.bytes, u"bytes"_s, name);
    return exitDone;
}

int exportNews(EmbeddedBackEnd& backEnd, const ExportOptions& options) {
    auto wanted = wantedNews(backEnd, options);
    if (!wanted)
        return unusable(sentence(wanted.error()));
    dropLater(wanted.value(), options.latest);
    const auto form = newsRowFormOfFile(options.target.file);
    if (!form && !isReadable(backEnd, wanted.value()))
        return unusable(sentence(*backEnd.storeDamage()));
    if (wanted.value().empty()) {
        printNote(u"There is no such news; nothing was written."_s);
        return exitPartly;
    }
    return form ? writeRows(backEnd, wanted.value(), options.target.file, *form)
                : putOut(wanted.value(), options);
}

}  // namespace

int runExport() {
    CommandArguments arguments(
        u"export"_s, u"Writes the news of a day, or what a search finds, as text or as printed pages."_s);
    addOptions(arguments.parser);
    if (const auto status = arguments.read())
        return *status;
    arguments.applyNow();
    const ExportOptions options = optionsOf(arguments);
    if (const auto status = arguments.fault())
        return *status;
    if (!QFileInfo::exists(arguments.storeToRead()))
        return unusable(u"There is no store %1."_s.arg(QDir::toNativeSeparators(arguments.storeToRead())));
    auto store = withReader(openStoreToRead(arguments.storeToRead(), {.onIndexing = indexingLines()}));
    if (!store)
        return unusable(sentence(store.error()));
    const auto backEnd = std::make_unique<EmbeddedBackEnd>(std::move(store.value()));
    const QString language =
        arguments.parser.isSet(u"lang"_s) ? arguments.parser.value(u"lang"_s) : Languages::ofSystem();
    Languages languages;
    languages.use(language);
    backEnd->setConvertsToSimplified(language == u"zh-CN"_s);
    BKQuoteInterface::setBKInterface(backEnd.get());
    return exportNews(*backEnd, options);
}

}  // namespace wirepane
