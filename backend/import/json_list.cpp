// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/json_list.h"

namespace wirepane {

namespace {

constexpr qint64 pieceSize = 32768;  // bytes

}  // namespace

JsonList::JsonList(QIODevice& list, qsizetype mostOfEntry) : source(list), most(mostOfEntry) {
    while ((at < text.size() || readOn()) && text.at(at) != '[')
        start = ++at;
    start = ++at;
}

std::optional<QByteArrayView> JsonList::next() {
    while (!atEnd) {
        bool isLast = false;
        start = at;
        tooLong = false;
        const QByteArrayView found = entry(isLast);
        atEnd = isLast;
        if (!found.isEmpty() || tooLong ||
            !isLast)  // an empty entry is an error of the list, save before its "]"
            return found;
    }
    return std::nullopt;
}

bool JsonList::isFollowed() {
    do {
        if (!QByteArrayView(text).sliced(at).trimmed().isEmpty())
            return true;
        start = at = text.size();
    } while (readOn());
    return false;
}

// Lets go of the entries before the present one.
bool JsonList::readOn() {
    const QByteArray piece = source.read(pieceSize);
    text.remove(0, start).append(piece);
    at -= start;
    start = 0;
    return !piece.isEmpty();
}

QByteArrayView JsonList::entry(bool& isLast) {
    qsizetype depth = 0;
    bool quoted = false;
    bool escaped = false;
    for (; at < text.size() || readOn(); ++at) {
        if (at - start >= most) {
            tooLong = true;
            start = at;
        }
        const char c = text.at(at);
        if (quoted) {
            quoted = escaped || c != '"';
            escaped = !escaped && c == '\\';
            continue;
        }
        quoted = c == '"';
        if (depth == 0 && (c == ',' || c == ']')) {
            isLast = closed = c == ']';
            return QByteArrayView(text).sliced(start, at++ - start).trimmed();
        }
        depth += (c == '[' || c == '{') - (c == ']' || c == '}');
    }
    isLast = true;
    return QByteArrayView(text).sliced(start).trimmed();
}

}  // namespace wirepane
