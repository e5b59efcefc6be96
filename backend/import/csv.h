// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "backend/import/text_pieces.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace wirepane {

struct CsvRecord {
    QStringList fields;
    qint64 line = 0;  // the line that it starts on, from 1
    // That its last field opens a quote that the text never closes, or that it is too long: it is not whole
    // then, and nothing behind it can be read.
    std::optional<Error> fault;
};

// Values separated by commas, or by another character: fields in quotes may hold commas, line breaks and
// doubled quotes; lines end in LF, CRLF or CR; a byte order mark at the start is left out, and so are empty
// lines.
class CsvReader {
public:
    // A record may have `mostOfRecord` characters.
    explicit CsvReader(TextPieces csv, QChar separator = u',', qint64 mostOfRecord = ReadLimits().record);
    explicit CsvReader(const QString& csv, QChar separator = u',');

    // The next record; nothing at the end.
    std::optional<CsvRecord> next();

    qsizetype position() const { return before + at; }  // characters read so far

private:
    bool isAtEnd();
    CsvRecord record();
    QString field(bool& closed);
    QString quotedField(bool& closed);
    bool takeLineEnd();

    TextPieces pieces;
    QChar comma;
    QString text;  // the present piece
    qsizetype at = 0;
    qsizetype before = 0;  // characters of the pieces before it
    qint64 line = 1;
    const qint64 most;
    qint64 recordStart = 0;  // in characters
    bool tooLong = false;
};

}  // namespace wirepane
