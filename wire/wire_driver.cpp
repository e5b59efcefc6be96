// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/wire_driver.h"

#include "wire/wire_errors.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace wirepane {

Result<WireDriver*> wireDriverFor(const QString& service) {
    static const QRegularExpression names(u"^[A-Za-z0-9_.-]{1,63}$"_s);
    if (!names.match(service).hasMatch())
        return makeError<wire_errors::serviceName>(service);
    const QDir programs(QCoreApplication::applicationDirPath());
    QString file = programs.filePath(QStringLiteral(WIREPANE_WIRE_FILE));
    if (!QFileInfo::exists(file))
        file = QDir::cleanPath(
            programs.filePath(QStringLiteral("../" WIREPANE_MODULE_FOLDER "/" WIREPANE_WIRE_FILE)));
    QPluginLoader loader(file);
    auto* const driver = qobject_cast<WireDriver*>(loader.instance());
    if (driver == nullptr)
        return makeError<wire_errors::driverMissing>(loader.errorString());
    return driver;
}

}  // namespace wirepane
