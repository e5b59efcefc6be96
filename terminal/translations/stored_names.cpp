// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/translations/stored_names.h"

#include "terminal/translations/languages.h"

#include <QFile>
#include <QHash>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// For each stored name a column for each language, in the order of Languages::codes(), behind its own.
QHash<QString, QStringList> readNames() {
    QFile file(u":/names/stored_names.tsv"_s);
    QHash<QString, QStringList> names;
    if (!file.open(QIODevice::ReadOnly))
        return names;
    const QString text = QString::fromUtf8(file.readAll());
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList columns = line.split(u'\t');
        if (columns.size() == Languages::codes().size() + 1)
            names.insert(columns.front(), columns);
    }
    return names;
}

}  // namespace

QString shownName(const QString& stored) {
    static const QHash<QString, QStringList> names = readNames();
    const auto found = names.constFind(stored);
    if (found == names.constEnd())
        return stored;
    const qsizetype language = Languages::codes().indexOf(QLocale().name().replace(u'_', u'-'));
    return found->at(qMax<qsizetype>(language, 0) + 1);
}

}  // namespace wirepane
