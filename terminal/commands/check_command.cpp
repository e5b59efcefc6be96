// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/check_command.h"

#include "backend/store/import_upkeep.h"
#include "backend/store/store_checker.h"
#include "backend/store/store_file.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace wirepane {

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
    const auto faults = StoreChecker(arguments.storeToRead()).check();
    if (!faults) {
        printNote(sentence(faults.error()));
        return exitUnusable;
    }
    for (const QString& fault : faults.value())
        printLine(fault);
    if (const auto store = Database::openToRead(arguments.storeFile(), StoreOptions().busyTimeout)) {
        if (const std::int64_t left = unindexedHeadlines(*store.value()).value_or(0); left > 0)
            printLine(
                u"The search index is behind an import: %1 headlines are still to come into it."_s.arg(left));
    }
    printLine(faults.value().isEmpty() ? u"The store %1 is sound."_s.arg(file)
                                       : u"The store %1 has faults."_s.arg(file));
    return faults.value().isEmpty() ? exitDone : exitPartly;
}

}  // namespace wirepane
