// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/check_command.h"

#include "backend/store/held_changes.h"
#include "backend/store/import_upkeep.h"
#include "backend/store/index_renewal.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"

#include <QDir>

#include <chrono>
#include <optional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::chrono::seconds isLong{5};
constexpr std::chrono::milliseconds betweenLines{200};

QString spanText(std::chrono::seconds span) {
    constexpr std::chrono::seconds inMinutes{100};
    if (span < inMinutes)
        return span.count() == 1 ? u"1 second"_s : u"%1 seconds"_s.arg(span.count());
    return u"%1 minutes"_s.arg(std::chrono::round<std::chrono::minutes>(span).count());
}

// What takes long is told before it begins; then how far it is, a few times a second.
CheckProgress checkLines() {
    return [last = std::optional<std::chrono::steady_clock::time_point>()](
               double share, std::chrono::seconds left) mutable {
        const auto now = std::chrono::steady_clock::now();
        if (!last && left >= isLong)
            printNote(
                u"The check will take about %1. The store can be used meanwhile."_s.arg(spanText(left)));
        if (last && now - *last < betweenLines)
            return;
        if (last)
            printPassing(
                u"Checking the store: %1 %, about %2 left"_s.arg(int(share * 100)).arg(spanText(left)));
        last = now;
    };
}

}  // namespace

int runCheck() {
    CommandArguments arguments(u"check"_s,
                               u"Verifies the store: its file, its rules, its search index. "
                               "Nothing is changed."_s);
    if (const auto status = arguments.read())
        return *status;
    if (!arguments.rest().isEmpty())
        arguments.fail(u"check takes no argument \"%1\"; the store is named by --store."_s.arg(
            arguments.rest().constFirst()));
    if (const auto status = arguments.fault())
        return *status;

    const QString file = QDir::toNativeSeparators(arguments.storeToRead());
    const auto faults = StoreChecker(arguments.storeToRead()).check(checkLines());
    clearPassing();
    if (!faults) {
        printNote(sentence(faults.error()));
        return exitUnusable;
    }
    for (const QString& fault : faults.value())
        printLine(fault);
    if (const auto store = Database::openToRead(arguments.storeToRead(), StoreOptions().busyTimeout)) {
        if (const std::int64_t left = unindexedHeadlines(*store.value()).value_or(0); left > 0)
            printLine(
                u"The search index is behind an import: %1 headlines are still to come into it."_s.arg(left));
        if (const std::int64_t left = dueChanges(*store.value()).value_or(0); left > 0)
            printLine(u"An import was ended early: %1 of its changes are still to be made."_s.arg(left));
        if (const std::optional<int> percent = renewalPercent(*store.value()))
            printLine(
                u"The search index follows earlier rules; a new one is being made beside it: %1 %."_s.arg(
                    *percent));
    }
    printLine(faults.value().isEmpty() ? u"The store %1 is sound."_s.arg(file)
                                       : u"The store %1 has faults."_s.arg(file));
    return faults.value().isEmpty() ? exitDone : exitPartly;
}

}  // namespace wirepane
