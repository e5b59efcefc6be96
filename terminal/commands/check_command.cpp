// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/check_command.h"

#include "backend/store/store_checker.h"
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

    const QString file = QDir::toNativeSeparators(arguments.storeFile());
    const auto faults = StoreChecker(arguments.storeFile()).check();
    if (!faults) {
        printNote(sentence(faults.error()));
        return exitUnusable;
    }
    for (const QString& fault : faults.value())
        printLine(fault);
    printLine(faults.value().isEmpty() ? u"The store %1 is sound."_s.arg(file)
                                       : u"The store %1 has faults."_s.arg(file));
    return faults.value().isEmpty() ? exitDone : exitPartly;
}

}  // namespace wirepane
