// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/settings_file.h"

#include "terminal/settings/ini_settings.h"
#include "terminal/settings/settings_errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLockFile>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int lockPatienceMs = 2000;

// The object that the file holds; nothing where it is damaged.
std::optional<QJsonObject> contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject())
        return std::nullopt;
    return document.object();
}

void change(QJsonObject& groups, const QString& group, const QString& name, const QJsonValue& value) {
    QJsonObject values = groups.value(group).toObject();
    if (value.isUndefined())
        values.remove(name);
    else
        values.insert(name, value);
    if (values.isEmpty())
        groups.remove(group);
    else
        groups.insert(group, values);
}

}  // namespace

SettingsFile::SettingsFile(const QString& filePath, const QString& olderIni) : path(filePath) {
    const QFileInfo info(path);
    if (info.exists())
        open();
    else if (QFileInfo::exists(olderIni))
        carryOver(olderIni);
}

void SettingsFile::open() {
    const QFileInfo info(path);
    readable = info.isFile() && info.isReadable();
    if (!readable) {
        openingMessage = u"The settings file %1 cannot be read; the defaults are used."_s.arg(path);
        return;
    }
    if (std::optional<QJsonObject> content = contentOf(path))
        groups = *std::move(content);
    else if (setAside())
        write();  // that there is a file says that there is nothing to carry over any more
}

void SettingsFile::carryOver(const QString& olderIni) {
    const std::optional<QJsonObject> older = readIniSettings(olderIni);
    if (!older) {
        openingMessage =
            u"The settings file %1 is damaged and stays as it is; the defaults are used."_s.arg(olderIni);
        return;
    }
    for (auto group = older->begin(); group != older->end(); ++group) {
        const QJsonObject values = group.value().toObject();
        for (auto value = values.begin(); value != values.end(); ++value)
            setValue(group.key(), value.key(), value.value());
    }
    // Where it cannot be saved now, it is later, or at the next start.
    save();
}

// False: the damaged file cannot be moved, and is never written.
bool SettingsFile::setAside() {
    QString aside;
    for (int number = 1; aside.isEmpty() || QFileInfo::exists(aside); ++number)
        aside = u"%1.damaged-%2"_s.arg(path).arg(number);
    readable = QFile::rename(path, aside);
    openingMessage =
        readable ? u"The settings file %1 was damaged and is kept as %2; the defaults are used."_s.arg(
                       path, QFileInfo(aside).fileName())
                 : u"The settings file %1 is damaged and cannot be moved; the defaults are used and "
                   "nothing is saved."_s.arg(path);
    return readable;
}

QJsonValue SettingsFile::value(const QString& group, const QString& name) const {
    return groups.value(group).toObject().value(name);
}

void SettingsFile::setValue(const QString& group, const QString& name, const QJsonValue& value) {
    if (!readable || this->value(group, name) == value)
        return;
    change(groups, group, name, value);
    changes.insert_or_assign({group, name}, value);
}

void SettingsFile::removeGroups(const QString& beginning) {
    for (const QString& group : groups.keys()) {
        if (!group.startsWith(beginning))
            continue;
        for (const QString& name : groups.value(group).toObject().keys())
            setValue(group, name, QJsonValue::Undefined);
    }
}

Done SettingsFile::save() {
    if (!readable)
        return makeError<settings_errors::fileNotRead>(path);
    if (changes.empty())
        return Nothing{};
    const QFileInfo info(path);
    if (!QDir().mkpath(info.absolutePath()))
        return makeError<settings_errors::folderNotMade>(info.absolutePath());
    const Done written = write();
    if (written)
        changes.clear();
    return written;
}

Done SettingsFile::write() {
    const Error failure = makeError<settings_errors::fileNotWritten>(path);
    QLockFile lock(path + u".lock"_s);
    if (!lock.tryLock(lockPatienceMs))
        return failure;
    const bool isNew = !QFileInfo::exists(path);
    std::optional<QJsonObject> present = isNew ? groups : contentOf(path);
    if (!present && !setAside())
        return failure;
    QJsonObject all = present ? *std::move(present) : groups;
    for (const auto& [place, value] : changes)
        change(all, place.first, place.second, value);
    QSaveFile file(path);
    // What is replaced keeps its rights; what is new is its owner's alone from its first byte on.
    if (!file.open(QIODevice::WriteOnly) ||
        (!QFileInfo::exists(path) && !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)))
        return failure;
    file.write(QJsonDocument(all).toJson());
    if (!file.commit())
        return failure;
    groups = all;
    return Nothing{};
}

}  // namespace wirepane
