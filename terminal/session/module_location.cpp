// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/module_location.h"

#include "host/views/news_module.h"
#include "terminal/session/session_errors.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString moduleFile = QStringLiteral(WIREPANE_MODULE_FILE);
const QString installedFolder = QStringLiteral("../" WIREPANE_MODULE_FOLDER);

}  // namespace

Result<NewsModule*> loadModule() {
    const QDir programFolder(QCoreApplication::applicationDirPath());
    for (const QString& folder : {u"."_s, installedFolder}) {
        const QString file = QDir::cleanPath(programFolder.filePath(folder + u'/' + moduleFile));
        if (!QFileInfo::exists(file))
            continue;
        QString error;
        if (NewsModule* module = loadNewsModule(file, error))
            return module;
        return makeError<session_errors::moduleNotLoaded>(error);
    }
    return makeError<session_errors::moduleNotFound>(
        moduleFile, programFolder.path(), QDir::cleanPath(programFolder.filePath(installedFolder)));
}

}  // namespace wirepane
