// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/rehearse_command.h"

#include "backend/search/query_errors.h"
#include "backend/search/rehearsal.h"
#include "backend/store/rehearsal_desk.h"
#include "backend/store/store_file.h"
#include "backend/store/store_reader.h"
#include "host/contract/clock.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/commands/found_rows.h"
#include "terminal/commands/news_query.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <limits>
#include <variant>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int usualDays = 30;
constexpr int mostDays = 3660;

struct RehearseOptions {
    QString query;
    unsigned char service = 0;  // 0: all
    int days = usualDays;
    int budget = 0;  // hits an hour; 0: none is set
    std::size_t shown = 0;
};

RehearseOptions optionsOf(CommandArguments& arguments) {
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    RehearseOptions options;
    options.query = arguments.rest().join(u' ');
    if (const auto read = readQuery(options.query, QueryUse::Alerts);
        const auto* fault = std::get_if<QueryFault>(&read))
        arguments.fail(sentence(errorOf(*fault)));
    options.service = static_cast<unsigned char>(arguments.number(u"service"_s, 0, 1, lastNewsService));
    options.days = int(arguments.number(u"days"_s, usualDays, 1, mostDays));
    options.budget = int(arguments.number(u"budget"_s, 0, 1, most));
    options.shown = std::size_t(arguments.number(u"hits"_s, 0, 1, most));
    return options;
}

QString hourOf(std::int64_t moment) {
    return QDateTime::fromSecsSinceEpoch(moment).toString(u"yyyy-MM-dd HH:mm"_s);
}

void printFigures(const Rehearsal& rehearsal) {
    const std::size_t days = rehearsal.days.size();
    printLine(u"%1 of %2 headlines in %3"_s.arg(rehearsal.hits.size())
                  .arg(rehearsal.tried)
                  .arg(days == 1 ? u"1 day"_s : u"%1 days"_s.arg(days)));
    for (const Rehearsal::Day& day : rehearsal.days)
        printLine(u"%1  %2"_s.arg(day.day.toString(Qt::ISODate)).arg(day.hits));
    if (!rehearsal.hours.empty())
        printLine(u"busiest hour: %1, %2"_s.arg(hourOf(rehearsal.hours.front().begin))
                      .arg(rehearsal.hours.front().hits));
    for (const Rehearsal::Word& word : rehearsal.bringing)
        printLine(u"brought by %1: %2"_s.arg(word.text).arg(word.hits));
    for (const Rehearsal::Word& word : rehearsal.exclusions)
        printLine(u"saved by -\"%1\": %2"_s.arg(word.text).arg(word.hits));
}

bool printHits(Database& store, const Rehearsal& rehearsal, std::size_t most) {
    FoundRows rows(store, FoundLine::Text);
    for (std::size_t i = 0; i < std::min(rehearsal.hits.size(), most); ++i) {
        const auto row = rows.row(rehearsal.hits[i]);
        if (const int error = row ? writeOutput(*row) : 0; error != 0) {
            noteLostOutput(error);
            return false;
        }
    }
    return true;
}

int rehearseIn(Database& store, const RehearseOptions& options) {
    StoreReader reader(store);
    const RehearsedTime time{options.service != 0 ? std::vector{options.service} : reader.serviceIds(),
                             host_clock::today(), options.days, host_clock::now()};
    const auto rehearsal = rehearse(store, options.query, time, rehearsedNews(reader));
    if (!rehearsal || store.damage()) {
        printNote(sentence(store.damage().value_or(store.failure())));
        return exitUnusable;
    }
    printFigures(*rehearsal);
    if (!printHits(store, *rehearsal, options.shown))
        return exitUnusable;
    if (const int over = options.budget > 0 ? rehearsal->hoursOver(options.budget) : 0; over > 0)
        printNote(u"Hours with more than %1: %2; the busiest has %3."_s.arg(options.budget)
                      .arg(over)
                      .arg(rehearsal->hours.front().hits));
    return exitDone;
}

}  // namespace

int runRehearse() {
    CommandArguments arguments(u"rehearse"_s,
                               u"Tells how often a query would have found a headline as it came."_s);
    arguments.parser.addPositionalArgument(u"query"_s, u"What an alert looks for (docs/search.md)."_s,
                                           u"query..."_s);
    arguments.parser.addOptions({
        {u"service"_s, u"News of this service only."_s, u"id"_s},
        {u"days"_s, u"Looks at so many days up to the present one (30)."_s, u"number"_s},
        {u"budget"_s, u"Warns of hours with more hits than that."_s, u"number"_s},
        {u"hits"_s, u"Prints the newest hits, so many at most."_s, u"number"_s},
    });
    if (const auto status = arguments.read())
        return *status;
    arguments.applyNow();
    const RehearseOptions options = optionsOf(arguments);
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
    return rehearseIn(*store.value(), options);
}

}  // namespace wirepane
