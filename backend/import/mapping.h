// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/mapped_time.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

namespace wirepane {

// Where one value of an item comes from.
struct MappedValue {
    QStringList columns;           // the first that is not empty counts
    QMap<QString, QString> names;  // what a column's value becomes; one that is not here stays as it is
    QString otherwise;             // where the columns are empty
};

enum class MappedLines {
    Wrapped,   // a blank or indented line starts a paragraph
    Kept,      // each line is a paragraph
    Numbered,  // a line that starts with a number ("1.", "(2)", "三、") starts a paragraph
};

struct MappedSymbols {
    QStringList columns;
    QString separator;  // between several codes in one column; empty: there is one
    unsigned char market = 0;
};

// How the rows of a table of news become items, as a mapping file says it (docs/formats.md describes the
// file).
struct Mapping {
    // Fails with a sentence that names what is wrong in the file.
    static Result<Mapping> parse(const QByteArray& file);
    static Result<Mapping> load(const QString& path);

    QStringList encodings;   // tried in order; empty: as for any table
    QChar separator = u',';  // between the fields of comma-separated values
    MappedValue service;     // its values are numbers; all empty: the command's service
    QString identityPrefix;
    QStringList identity;  // columns
    QStringList title;     // columns
    QStringList story;     // columns; one after the other
    MappedLines lines = MappedLines::Wrapped;
    MappedTime time;
    MappedValue category;
    MappedSymbols symbols;

    // Every column that a table must have.
    QStringList neededColumns() const;
};

// The service of all rows; 0: the mapping leaves it to the command, or to the rows.
unsigned char fixedServiceOf(const Mapping& mapping);

}  // namespace wirepane
