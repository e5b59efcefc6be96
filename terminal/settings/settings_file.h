// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QJsonValue>
#include <QString>

#include <memory>

class QSettings;

namespace wirepane {

// Values by group and name in one ini file. Each value stands in the file as JSON text, so that lists, line
// breaks and odd characters survive. Group and name may hold any character.
//
// A file that cannot be understood is set aside as "NAME.damaged-1" (2, 3, ...) and reading starts from
// nothing; message() then says so. A file that cannot be read is left alone and never written.
class SettingsFile {
public:
    // Opens the file; a missing one is empty and appears, for its owner alone, at the latest with the first
    // save().
    explicit SettingsFile(const QString& path);
    SettingsFile(const SettingsFile&) = delete;
    SettingsFile& operator=(const SettingsFile&) = delete;
    ~SettingsFile();

    // What the user should know about the opening, in a sentence; empty when all was well.
    const QString& message() const { return openingMessage; }

    // QJsonValue::Undefined when there is none.
    QJsonValue value(const QString& group, const QString& name) const;
    // Takes effect for value() at once and on disk with save(). Undefined removes the value.
    void setValue(const QString& group, const QString& name, const QJsonValue& value);
    // Removes all values of the groups whose names begin so.
    void removeGroups(const QString& beginning);
    // Replaces the file as a whole or leaves it as it was. Does nothing when nothing has changed since.
    Done save();

private:
    void setAsideDamagedFile();

    QString path;
    QString openingMessage;
    bool readable = true;
    bool changed = false;
    std::unique_ptr<QSettings> settings;
};

}  // namespace wirepane
