// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/trim_command.h"

#include "backend/database/database_failure.h"
#include "backend/store/store_file.h"
#include "backend/store/store_writer.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/session/retention_keeper.h"

#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::chrono::milliseconds othersTurn{5};  // who waits to write comes in between two steps
constexpr int mostDays = 100'000;
constexpr std::int64_t mostMegabytes = 10'000'000;
constexpr std::int64_t megabyte = 1'000'000;

int unusable(const Error& error) {
    printNote(sentence(error));
    return exitUnusable;
}

int trim(StoreWriter& writer, const Retention& keep) {
    std::int64_t removed = 0;
    for (Result<TrimStep> step = TrimStep{}; !step.value().isDone;) {
        step = writer.trim(keep, retentionNow());
        if (!step) {
            clearPassing();
            return unusable(step.error());
        }
        removed += step.value().removed;
        printPassing(u"%1 headlines taken out"_s.arg(removed));
        std::this_thread::sleep_for(othersTurn);
    }
    clearPassing();
    printLine(removed == 1 ? u"1 headline was taken out."_s : u"%1 headlines were taken out."_s.arg(removed));
    return exitDone;
}

}  // namespace

int runTrim() {
    CommandArguments arguments(u"trim"_s,
                               u"Takes old news out of the store, while others may use it. "
                               "News that is older than what was taken out does not come in again."_s);
    arguments.parser.addOption({u"days"_s, u"Keeps the news of that many days."_s, u"number"_s});
    arguments.parser.addOption(
        {u"size"_s, u"Keeps the newest news of a store that is larger than that many MB."_s, u"number"_s});
    arguments.parser.addOption({u"any-age"_s, u"Lets news of any age come in again; takes nothing out."_s});
    if (const auto status = arguments.read())
        return *status;
    const Retention keep{int(arguments.number(u"days"_s, 0, 1, mostDays)),
                         megabyte * arguments.number(u"size"_s, 0, 1, mostMegabytes)};
    const bool anyAge = arguments.parser.isSet(u"any-age"_s);
    if (!arguments.rest().isEmpty())
        arguments.fail(u"trim takes no argument \"%1\"."_s.arg(arguments.rest().constFirst()));
    if (keep.isOn() == anyAge)
        arguments.fail(u"trim needs --days, --size or both, or --any-age alone."_s);
    if (const auto status = arguments.fault())
        return *status;
    arguments.applyNow();

    const auto store = openStoreToRead(arguments.storeFile(), {.onIndexing = indexingLines()});
    if (!store)
        return unusable(store.error());
    if (store.value()->isReadOnly())
        return unusable(onlyReadError(arguments.storeFile()));
    StoreWriter writer(*store.value());
    if (!anyAge)
        return trim(writer, keep);
    if (const Done lifted = writer.takeAnyAge(); !lifted)
        return unusable(lifted.error());
    printLine(u"News of any age is taken in again."_s);
    return exitDone;
}

}  // namespace wirepane
