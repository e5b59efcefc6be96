// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <map>
#include <optional>
#include <utility>

namespace wirepane {

// Values by group and name in one JSON file: an object of groups, each an object of values. Group and name
// may hold any character; what nobody asks for stays in the file.
//
// A file that cannot be understood is set aside as "NAME.damaged-1" (2, 3, ...) and reading starts from
// nothing; message() then says so. A file that cannot be read is left alone and never written.
class SettingsFile {
public:
    // Opens the file; a missing one is empty and appears, for its owner alone, with the first save(). Where
    // it is missing and `olderIni` is there (see readIniSettings), its settings are carried over and saved at
    // once; the older file stays as it is, and is not looked at again.
    explicit SettingsFile(const QString& path, const QString& olderIni = {});
    SettingsFile(const SettingsFile&) = delete;
    SettingsFile& operator=(const SettingsFile&) = delete;

    // What the user should know about the opening, in a sentence; empty when all was well.
    const QString& message() const { return openingMessage; }

    // QJsonValue::Undefined when there is none.
    QJsonValue value(const QString& group, const QString& name) const;
    // Takes effect for value() at once and on disk with save(). Undefined removes the value.
    void setValue(const QString& group, const QString& name, const QJsonValue& value);
    // Removes all values of the groups whose names begin so.
    void removeGroups(const QString& beginning);
    // Replaces the file as a whole or leaves it as it was; what another program has saved there meanwhile
    // stays, but for the same values. Does nothing when nothing has changed since.
    Done save();

private:
    void open();
    void carryOver(const QString& olderIni);
    bool setAside();
    Done write();

    QString path;
    QString openingMessage;
    bool readable = true;
    QJsonObject groups;
    std::map<std::pair<QString, QString>, QJsonValue> changes;  // since the last save, by group and name
};

}  // namespace wirepane
