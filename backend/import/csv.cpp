// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/csv.h"

#include "backend/import/import_errors.h"

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

bool isLineEnd(QChar c) {
    return c == u'\n' || c == u'\r';
}

}  // namespace

CsvReader::CsvReader(TextPieces csv, QChar separator, qint64 mostOfRecord)
    : pieces(std::move(csv)), comma(separator), text(pieces()), most(mostOfRecord) {
    at = text.startsWith(QChar::ByteOrderMark) ? 1 : 0;
}

CsvReader::CsvReader(const QString& csv, QChar separator)
    : CsvReader([rest = csv]() mutable { return std::exchange(rest, {}); }, separator) {}

std::optional<CsvRecord> CsvReader::next() {
    do {
        recordStart = position();
    } while (takeLineEnd());
    if (isAtEnd())
        return std::nullopt;
    return record();
}

// Goes to the next piece where this one has been read. A record that is too long ends there.
bool CsvReader::isAtEnd() {
    if (at < text.size())
        return false;
    tooLong = tooLong || position() - recordStart > most;
    if (tooLong)
        return true;
    before += at;
    at = 0;
    text = pieces();
    return text.isEmpty();
}

CsvRecord CsvReader::record() {
    CsvRecord found{{}, line, std::nullopt};
    bool closed = true;
    for (bool isDone = false; !isDone; at += isDone ? 0 : 1) {
        found.fields += field(closed);
        tooLong = tooLong || found.fields.size() * qint64(sizeof(QString)) > most;
        isDone = tooLong || isAtEnd() || takeLineEnd();
    }
    if (tooLong)
        found.fault = makeError<import_errors::recordTooLong>(most);
    else if (!closed)
        found.fault = makeError<import_errors::quoteNotClosed>();
    return found;
}

// What stands behind a closing quote belongs to the field as it is.
QString CsvReader::field(bool& closed) {
    QString value;
    if (!isAtEnd() && text.at(at) == u'"')
        value = quotedField(closed);
    const auto ends = [this](QChar c) { return c == comma || isLineEnd(c); };
    while (!isAtEnd() && !ends(text.at(at))) {
        const qsizetype start = at;
        at = std::find_if(text.cbegin() + start, text.cend(), ends) - text.cbegin();
        value += QStringView(text).sliced(start, at - start);
    }
    return value;
}

QString CsvReader::quotedField(bool& closed) {
    QString value;
    const auto stops = [](QChar c) { return c == u'"' || isLineEnd(c); };
    for (++at; !isAtEnd();) {
        const qsizetype start = at;
        at = std::find_if(text.cbegin() + start, text.cend(), stops) - text.cbegin();
        value += QStringView(text).sliced(start, at - start);
        if (at == text.size())
            continue;
        const QChar c = text.at(at++);
        if (c == u'"') {
            if (isAtEnd() || text.at(at) != u'"')
                return value;
            ++at;
        } else if (c == u'\n' || isAtEnd() || text.at(at) != u'\n') {
            ++line;
        }
        value += c;
    }
    closed = false;
    return value;
}

bool CsvReader::takeLineEnd() {
    if (isAtEnd() || !isLineEnd(text.at(at)))
        return false;
    if (text.at(at++) == u'\r' && !isAtEnd() && text.at(at) == u'\n')
        ++at;
    ++line;
    return true;
}

}  // namespace wirepane
