// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/search_command.h"

#include "backend/search/news_search.h"
#include "backend/search/search_following.h"
#include "backend/store/store_file.h"
#include "backend/store/store_reader.h"
#include "host/contract/clock.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/commands/found_rows.h"
#include "terminal/commands/news_query.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/console/interrupt.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

void addOptions(QCommandLineParser& parser) {
    addQueryOptions(parser);
    parser.addPositionalArgument(u"keyword"_s, u"What a story must hold; plain text."_s, u"keyword..."_s);
    parser.addOptions({
        {u"limit"_s, u"Prints so many at most, the newest."_s, u"number"_s},
        {u"json"_s, u"Prints a JSON object per line."_s},
        {u"format"_s, u"Prints text (the default), csv, json or ninjs; but for text with stories."_s,
         u"name"_s},
        {u"follow"_s, u"Prints what was found oldest first, then what comes, until it is stopped."_s},
    });
}

struct SearchOptions {
    CSearch condition;
    unsigned char service = 0;  // 0: all
    std::size_t most = 0;
    FoundForm form = FoundLine::Text;
    std::optional<std::int64_t> latest;  // none: what is dated later is found, too
};

SearchOptions optionsOf(CommandArguments& arguments) {
    const QCommandLineParser& parser = arguments.parser;
    SearchOptions options;
    options.condition = conditionOf(arguments, arguments.rest());
    if (options.condition.keywords.empty())
        arguments.fail(u"search needs a keyword."_s);
    options.service = static_cast<unsigned char>(arguments.number(u"service"_s, 0, 1, lastNewsService));
    options.most = static_cast<std::size_t>(arguments.number(
        u"limit"_s, std::numeric_limits<std::int64_t>::max(), 1, std::numeric_limits<int>::max()));
    if (parser.isSet(u"json"_s))
        options.form = FoundLine::Json;
    if (const QString name = parser.value(u"format"_s); !name.isEmpty() && name != "text"_L1) {
        const auto form = newsRowFormOf(name);
        if (!form || parser.isSet(u"json"_s))
            arguments.fail(
                u"--format is one of text, %1, without --json."_s.arg(newsRowForms().join(u", "_s)));
        else
            options.form = *form;
    }
    if (parser.isSet(u"follow"_s) && options.form == FoundForm(NewsRowForm::Json))
        arguments.fail(u"A list of --format json ends; follow with ninjs, csv or --json."_s);
    if (parser.isSet(u"now"_s))
        options.latest = latestOf(arguments);
    return options;
}

std::vector<unsigned char> servicesOf(const SearchOptions& options, Database& store) {
    return options.service != 0 ? std::vector{options.service} : StoreReader(store).serviceIds();
}

int unreadable(Database& store) {
    printNote(sentence(store.damage().value_or(store.failure())));
    return exitUnusable;
}

int printFound(Database& store, const SearchOptions& options) {
    constexpr std::int64_t never = std::numeric_limits<std::int64_t>::max();
    // One more than is shown tells that there are more.
    const auto found = NewsSearch(store).findOnce(servicesOf(options, store), options.condition,
                                                  {options.most + 1, options.latest.value_or(never)});
    if (!found || store.damage())
        return unreadable(store);
    noteBacklog(store);
    FoundRows rows(store, options.form);
    const auto put = [](const QByteArray& bytes) {
        const int error = writeOutput(bytes);
        if (error != 0)
            noteLostOutput(error);
        return error == 0;
    };
    for (std::size_t i = 0; i < std::min(found->size(), options.most) && !store.damage(); ++i) {
        const auto row = rows.row(keyOf((*found)[i]));
        if (row && !put(*row))
            return exitUnusable;
    }
    if (store.damage())
        return unreadable(store);
    put(rows.end());
    if (found->empty())
        printNote(u"Nothing was found."_s);
    else if (found->size() > options.most)
        printNote(u"More than %1 were found; the newest are shown."_s.arg(options.most));
    return exitDone;
}

// Until the user ends it or nobody reads any more, both of which is as it should be.
int follow(Database& store, const SearchOptions& options) {
    const OutputEnd end;
    SearchFollowing following(store, options.condition);
    FoundRows rows(store, options.form);
    bool isFirst = true;
    while (!end.hasCome()) {
        const std::int64_t latest =
            options.latest ? host_clock::now() : std::numeric_limits<std::int64_t>::max();
        if (!following.isDue(latest)) {
            end.wait();
            continue;
        }
        QElapsedTimer clock;
        clock.start();
        const auto found = following.look(servicesOf(options, store), latest);
        if (!found || store.damage())
            return unreadable(store);
        const bool isCut = std::exchange(isFirst, false) && found->size() > options.most;
        for (auto entry = found->end() - (isCut ? options.most : found->size()); entry != found->end();
             ++entry) {
            const auto row = rows.row(keyOf(*entry));
            const int error = row && !end.hasCome() ? writeOutput(*row) : 0;
            if (error == EPIPE)
                return exitDone;
            if (error != 0) {
                noteLostOutput(error);
                return exitUnusable;
            }
        }
        // Busy news does not keep a processor busy with a search that takes long.
        end.wait(5 * clock.elapsed());
    }
    return exitDone;
}

}  // namespace

int runSearch() {
    CommandArguments arguments(u"search"_s, u"Prints the news that holds all the keywords, newest first."_s);
    addOptions(arguments.parser);
    if (const auto status = arguments.read())
        return *status;
    arguments.applyNow();
    const SearchOptions options = optionsOf(arguments);
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
    return arguments.parser.isSet(u"follow"_s) ? follow(*store.value(), options)
                                               : printFound(*store.value(), options);
}

}  // namespace wirepane
