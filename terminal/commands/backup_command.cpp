// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/backup_command.h"

#include "backend/database/backup.h"
#include "backend/store/store_file.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

int unusable(const Error& error) {
    printNote(sentence(error));
    return exitUnusable;
}

}  // namespace

int runBackup() {
    CommandArguments arguments(u"backup"_s, u"Copies the store to a new file, while others may use it."_s);
    arguments.parser.addPositionalArgument(u"file"_s, u"The new file, a store itself."_s, u"FILE"_s);
    if (const auto status = arguments.read())
        return *status;
    if (arguments.rest().size() != 1)
        arguments.fail(u"backup takes one file to copy the store to."_s);
    if (const auto status = arguments.fault())
        return *status;

    const auto store = Database::openToRead(arguments.storeToRead(), StoreOptions().busyTimeout);
    if (!store)
        return unusable(store.error());
    if (const std::optional<Error> fault = readingFault(*store.value()))
        return unusable(*fault);
    const QString target = arguments.rest().constFirst();
    const Done copied = backUp(*store.value(), target, passingShare(u"Copying the store"_s));
    clearPassing();
    if (!copied)
        return unusable(copied.error());
    printLine(u"The store %1 is in %2 (%3)."_s.arg(QDir::toNativeSeparators(arguments.storeToRead()),
                                                   QDir::toNativeSeparators(target),
                                                   QLocale::c().formattedDataSize(QFileInfo(target).size())));
    return exitDone;
}

}  // namespace wirepane
