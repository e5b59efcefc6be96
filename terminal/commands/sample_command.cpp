// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/sample_command.h"

#include "host/contract/clock.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/console/interrupt.h"
#include "terminal/session/sample_filling.h"
#include "terminal/session/store_opening.h"
#include "terminal/session/user_stores.h"

#include <atomic>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

SampleOptions sampleOptions(CommandArguments& arguments) {
    SampleOptions options;
    options.seed = static_cast<std::uint64_t>(
        arguments.number(u"seed"_s, 1, 0, std::numeric_limits<std::int64_t>::max()));
    options.days = static_cast<int>(arguments.number(u"days"_s, options.days, 1, SampleOptions::mostDays));
    options.headlinesPerDay = static_cast<int>(
        arguments.number(u"per-day"_s, options.headlinesPerDay, 1, SampleOptions::mostHeadlinesPerDay));
    arguments.applyNow();
    options.now = host_clock::now();
    if (!arguments.rest().isEmpty())
        arguments.fail(u"sample takes no argument \"%1\"."_s.arg(arguments.rest().constFirst()));
    return options;
}

}  // namespace

int runSample() {
    const SampleOptions defaults;
    CommandArguments arguments(u"sample"_s,
                               u"Takes an invented news wire, up to the present moment, into the store."_s);
    arguments.parser.addOptions({
        {u"seed"_s, u"Which wire: the same number gives the same news. Default: 1."_s, u"number"_s},
        {u"days"_s, u"How many days back. Default: %1."_s.arg(defaults.days), u"number"_s},
        {u"per-day"_s, u"Headlines on a working day. Default: %1."_s.arg(defaults.headlinesPerDay),
         u"number"_s},
    });
    if (const auto status = arguments.read())
        return *status;
    const SampleOptions options = sampleOptions(arguments);
    if (const auto status = arguments.fault())
        return *status;

    const bool isNamed = arguments.parser.isSet(u"store"_s);
    const auto store =
        openOrMakeStore(isNamed ? arguments.storeFile() : userStores().sample, indexingLines());
    if (!store) {
        printNote(sentence(store.error()));
        return exitUnusable;
    }
    std::atomic<bool> stopped = false;
    const OnInterrupt stopping([&stopped] { stopped = true; });
    const auto totals = fillWithSample(*store.value(), options, [&stopped](std::int64_t items) {
        printPassing(u"%1 items"_s.arg(items));
        return !stopped;
    });
    clearPassing();
    if (!totals) {
        printNote(sentence(totals.error()));
        return stopped ? exitPartly : exitUnusable;
    }
    const SampleTotals& counted = totals.value();
    printLine(
        u"%1 taken in, %2 already there"_s.arg(counted.takenIn).arg(counted.alreadyThere) +
        (counted.tooOld > 0 ? u", %1 older than what the store keeps"_s.arg(counted.tooOld) : QString()));
    return exitDone;
}

}  // namespace wirepane
