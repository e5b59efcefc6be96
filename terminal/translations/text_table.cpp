// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/translations/text_table.h"

#include "terminal/translations/languages.h"

#include <QFile>
#include <QLocale>

namespace wirepane {

TextTable::TextTable(const QString& fileName) {
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QStringList columns = line.split(u'\t');
        if (columns.size() == Languages::codes().size() + 1)
            rows.insert(columns.front(), columns);
    }
}

std::optional<QString> TextTable::find(const QString& key) const {
    const auto found = rows.constFind(key);
    if (found == rows.constEnd())
        return std::nullopt;
    const qsizetype language = Languages::codes().indexOf(QLocale().name().replace(u'_', u'-'));
    return found->at(qMax<qsizetype>(language, 0) + 1);
}

}  // namespace wirepane
