// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/ini_settings.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSettings>
#include <QUrl>

namespace wirepane {

namespace {

// The ini format gives slashes and backslashes in keys a meaning of their own; nothing at all is "%".
QString unescaped(const QString& part) {
    return part == u'%' ? QString() : QUrl::fromPercentEncoding(part.toUtf8());
}

// JSON knows no document of a bare value here: it is read inside an array.
QJsonValue decoded(const QVariant& stored) {
    if (stored.typeId() != QMetaType::QString)
        return QJsonValue::Undefined;
    const QByteArray array = '[' + stored.toString().toUtf8() + ']';
    const QJsonArray values = QJsonDocument::fromJson(array).array();
    return values.size() == 1 ? values.at(0) : QJsonValue(QJsonValue::Undefined);
}

}  // namespace

std::optional<QJsonObject> readIniSettings(const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable())
        return std::nullopt;
    const QSettings ini(path, QSettings::IniFormat);
    QJsonObject groups;
    for (const QString& key : ini.allKeys()) {
        const QJsonValue value = decoded(ini.value(key));
        if (value.isUndefined())
            return std::nullopt;
        if (!key.contains(u'/'))
            continue;  // in no group: nobody's
        const QString group = unescaped(key.section(u'/', 0, 0));
        QJsonObject values = groups.value(group).toObject();
        values.insert(unescaped(key.section(u'/', 1)), value);
        groups.insert(group, values);
    }
    // Sections are parsed when they are read: the status is known only now.
    if (ini.status() != QSettings::NoError)
        return std::nullopt;
    return groups;
}

}  // namespace wirepane
