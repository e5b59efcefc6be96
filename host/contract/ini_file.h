// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QByteArray>
#include <QHash>
#include <QString>

namespace wirepane {

// A small reader of the host's ini files. Section and key names are compared without regard to case, values
// are taken as they stand (trimmed, one pair of enclosing quotation marks removed), the first of equal keys
// counts. The bytes are UTF-8 or, where they are not valid UTF-8, code page 950.
class WIREPANE_CONTRACT_EXPORT IniFile {
public:
    // Reads a file of at most 1 MiB. A missing, unreadable or larger file gives an IniFile without values.
    static IniFile load(const QString& path);
    static IniFile parse(const QByteArray& bytes);

    // The value, cut to `maxLength` characters; `fallback` when the key is absent.
    QString text(const QString& section, const QString& key, const QString& fallback = {},
                 qsizetype maxLength = 1024) const;
    // The value as a whole number; `fallback` when the key is absent or is not a number.
    int number(const QString& section, const QString& key, int fallback) const;

private:
    QHash<QString, QString> values;  // "section\nkey" in lower case
};

}  // namespace wirepane
