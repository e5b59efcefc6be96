// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/typed_query.h"

#include "host/contract/query/search_query.h"

#include <variant>

namespace wirepane {

namespace {

constexpr qsizetype shortestBeginning = 3;
constexpr char16_t firstWithoutWords = 0x2e80;  // of the scripts that are written without blanks

// A single character of Chinese is a word by itself.
qsizetype lettersAtEnd(const QString& text) {
    qsizetype count = 0;
    for (auto letter = text.crbegin(); letter != text.crend(); ++letter, ++count) {
        if (letter->unicode() >= firstWithoutWords || !letter->isLetterOrNumber())
            break;
    }
    return count;
}

bool isSound(const QString& query) {
    return std::holds_alternative<QueryNode>(readQuery(query));
}

// What the user leaves out is a whole word: its beginning leaves out too much.
bool mayGoOn(const QString& query) {
    const ReadQuery read = readQuery(query);
    const auto* node = std::get_if<QueryNode>(&read);
    return node != nullptr && !leavesOutCut(*node);
}

}  // namespace

QString typedQuery(const QString& text) {
    if (lettersAtEnd(text) >= shortestBeginning) {
        if (QString query = text.trimmed() + u'*'; mayGoOn(query))
            return query;
    }
    return isSound(text) ? text.trimmed() : QString();
}

}  // namespace wirepane
