// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/csv.h"

namespace wirepane {

namespace {

bool isLineEnd(QChar c) {
    return c == u'\n' || c == u'\r';
}

}  // namespace

CsvReader::CsvReader(QStringView csv, QChar separator)
    : text(csv), comma(separator), at(csv.startsWith(QChar::ByteOrderMark) ? 1 : 0) {}

std::optional<CsvRecord> CsvReader::next() {
    while (takeLineEnd()) {
    }
    if (at == text.size())
        return std::nullopt;
    return record();
}

CsvRecord CsvReader::record() {
    CsvRecord found{{}, line, true};
    for (;;) {
        found.fields += field(found.closed);
        if (at == text.size() || takeLineEnd())
            return found;
        ++at;  // the comma
    }
}

// What stands behind a closing quote belongs to the field as it is.
QString CsvReader::field(bool& closed) {
    QString value;
    if (at < text.size() && text.at(at) == u'"')
        value = quotedField(closed);
    const qsizetype start = at;
    while (at < text.size() && text.at(at) != comma && !isLineEnd(text.at(at)))
        ++at;
    return value.append(text.sliced(start, at - start));
}

QString CsvReader::quotedField(bool& closed) {
    QString value;
    for (++at; at < text.size(); ++at) {
        const QChar c = text.at(at);
        if (c == u'"') {
            if (at + 1 == text.size() || text.at(at + 1) != u'"') {
                ++at;
                return value;
            }
            ++at;
        }
        if (c == u'\n' || (c == u'\r' && !text.sliced(at).startsWith(u"\r\n")))
            ++line;
        value += c;
    }
    closed = false;
    return value;
}

bool CsvReader::takeLineEnd() {
    if (at == text.size() || !isLineEnd(text.at(at)))
        return false;
    at += text.sliced(at).startsWith(u"\r\n") ? 2 : 1;
    ++line;
    return true;
}

}  // namespace wirepane
