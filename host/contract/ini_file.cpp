// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/ini_file.h"

#include <QFile>
#include <QStringDecoder>

namespace wirepane {

namespace {

constexpr qint64 maxFileSize = 1 << 20;

QString decoded(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    if (!utf8.hasError())
        return text;
    QStringDecoder codePage950("windows-950");
    return codePage950.isValid() ? QString(codePage950(bytes)) : text;
}

QString entryName(const QString& section, const QString& key) {
    return (section + u'\n' + key).toLower();
}

QString unquoted(const QString& value) {
    if (value.size() >= 2 && value.front() == value.back() &&
        (value.front() == u'"' || value.front() == u'\''))
        return value.mid(1, value.size() - 2);
    return value;
}

}  // namespace

IniFile IniFile::load(const QString& path) {
    QFile file(path);
    if (file.size() > maxFileSize || !file.open(QIODevice::ReadOnly))
        return {};
    return parse(file.readAll());
}

IniFile IniFile::parse(const QByteArray& bytes) {
    IniFile result;
    QString section;
    const QStringList lines = decoded(bytes).split(u'\n');
    for (const QString& raw : lines) {
        const QString line = raw.trimmed();
        if (line.startsWith(u';') || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'[')) {
            const auto end = line.indexOf(u']');
            section = end < 0 ? QString() : line.mid(1, end - 1).trimmed();
            continue;
        }
        const auto equals = line.indexOf(u'=');
        if (equals <= 0)
            continue;
        const QString name = entryName(section, line.left(equals).trimmed());
        if (!result.values.contains(name))
            result.values.insert(name, unquoted(line.mid(equals + 1).trimmed()));
    }
    return result;
}

QString IniFile::text(const QString& section, const QString& key, const QString& fallback,
                      qsizetype maxLength) const {
    return values.value(entryName(section, key), fallback).left(maxLength);
}

int IniFile::number(const QString& section, const QString& key, int fallback) const {
    bool ok = false;
    const int value = values.value(entryName(section, key)).toInt(&ok);
    return ok ? value : fallback;
}

}  // namespace wirepane
