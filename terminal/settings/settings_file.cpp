// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/settings_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSettings>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The ini format gives slashes and backslashes in keys a meaning of their own.
QString escaped(const QString& part) {
    return part.isEmpty() ? u"%"_s : QString::fromLatin1(QUrl::toPercentEncoding(part));
}

QString fileKey(const QString& group, const QString& name) {
    return escaped(group) + u'/' + escaped(name);
}

// JSON knows no document of a bare value here: it travels inside an array.
QString encoded(const QJsonValue& value) {
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

QJsonValue decoded(const QVariant& stored) {
    if (stored.typeId() != QMetaType::QString)
        return QJsonValue::Undefined;
    const QByteArray array = '[' + stored.toString().toUtf8() + ']';
    const QJsonArray values = QJsonDocument::fromJson(array).array();
    return values.size() == 1 ? values.at(0) : QJsonValue(QJsonValue::Undefined);
}

bool isDamaged(const QSettings& settings) {
    const QStringList keys = settings.allKeys();
    const bool allDecoded = std::none_of(keys.begin(), keys.end(), [&settings](const QString& key) {
        return decoded(settings.value(key)).isUndefined();
    });
    // Sections are parsed when they are read: the status is known only now.
    return !allDecoded || settings.status() == QSettings::FormatError;
}

// What is replaced keeps its rights: so it is its owner's alone from its first byte on.
void makeForOwner(const QString& path) {
    QFile(path).open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
}

std::unique_ptr<QSettings> openIni(const QString& path) {
    return std::make_unique<QSettings>(path, QSettings::IniFormat);
}

}  // namespace

SettingsFile::SettingsFile(const QString& filePath) : path(filePath) {
    const QFileInfo info(path);
    if (info.exists() && !(info.isFile() && info.isReadable())) {
        readable = false;
        openingMessage = u"The settings file %1 cannot be read; the defaults are used."_s.arg(path);
    }
    settings = openIni(readable ? path : QString());
    if (readable && isDamaged(*settings))
        setAsideDamagedFile();
}

SettingsFile::~SettingsFile() = default;

void SettingsFile::setAsideDamagedFile() {
    settings.reset();
    QString aside;
    for (int number = 1; aside.isEmpty() || QFileInfo::exists(aside); ++number)
        aside = u"%1.damaged-%2"_s.arg(path).arg(number);
    readable = QFile::rename(path, aside);
    openingMessage =
        readable ? u"The settings file %1 was damaged and is kept as %2; the defaults are used."_s.arg(
                       path, QFileInfo(aside).fileName())
                 : u"The settings file %1 is damaged and cannot be moved; the defaults are used and "
                   "nothing is saved."_s.arg(path);
    settings = openIni(readable ? path : QString());
}

QJsonValue SettingsFile::value(const QString& group, const QString& name) const {
    const QVariant stored = settings->value(fileKey(group, name));
    return stored.isValid() ? decoded(stored) : QJsonValue(QJsonValue::Undefined);
}

void SettingsFile::setValue(const QString& group, const QString& name, const QJsonValue& value) {
    if (!readable || this->value(group, name) == value)
        return;
    changed = true;
    // The settings may be written at any time from here on.
    makeForOwner(path);
    if (value.isUndefined())
        settings->remove(fileKey(group, name));
    else
        settings->setValue(fileKey(group, name), encoded(value));
}

void SettingsFile::removeGroups(const QString& beginning) {
    const QString start = escaped(beginning);
    const QStringList groups = settings->childGroups();
    for (const QString& group : groups) {
        if (!readable || !group.startsWith(start))
            continue;
        settings->remove(group);
        changed = true;
    }
}

Done SettingsFile::save() {
    if (!readable)
        return Error{u"The settings are not saved: the file %1 could not be read."_s.arg(path)};
    if (!changed)
        return Nothing{};
    const QFileInfo info(path);
    if (!QDir().mkpath(info.absolutePath()))
        return Error{u"The settings are not saved: the folder %1 cannot be made."_s.arg(info.absolutePath())};
    makeForOwner(path);
    settings->sync();
    if (settings->status() != QSettings::NoError)
        return Error{u"The settings are not saved: the file %1 cannot be written."_s.arg(path)};
    changed = false;
    return Nothing{};
}

}  // namespace wirepane
