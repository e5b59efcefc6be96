// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/json_list.h"

namespace wirepane {

JsonList::JsonList(QByteArrayView list) : text(list), at(list.indexOf('[') + 1) {}

std::optional<QByteArrayView> JsonList::next() {
    while (!atEnd) {
        bool isLast = false;
        const QByteArrayView entry = entryFrom(at, isLast);
        atEnd = isLast;
        if (!entry.isEmpty() || !isLast)  // an empty entry is an error of the list, save before its "]"
            return entry;
    }
    return std::nullopt;
}

QByteArrayView JsonList::entryFrom(qsizetype start, bool& isLast) {
    qsizetype depth = 0;
    bool quoted = false;
    for (at = start; at < text.size(); ++at) {
        const char c = text[at];
        if (quoted) {
            if (c == '\\')
                ++at;
            quoted = c != '"';
            continue;
        }
        quoted = c == '"';
        if (depth == 0 && (c == ',' || c == ']')) {
            isLast = closed = c == ']';
            return text.sliced(start, at++ - start).trimmed();
        }
        depth += (c == '[' || c == '{') - (c == ']' || c == '}');
    }
    isLast = true;
    at = text.size();
    return text.sliced(start).trimmed();
}

}  // namespace wirepane
