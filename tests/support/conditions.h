// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <utility>
#include <vector>

namespace wirepane {

// Keywords that a text form may stumble over.
inline const std::vector<QString> awkward{
    QStringLiteral("rate cut"),    QStringLiteral("a,b;c|d"),       QStringLiteral("\"quoted\" 'so'"),
    QStringLiteral("back\\slash"), QStringLiteral("two\r\nlines"),  QStringLiteral("聯儲局"),
    QStringLiteral("ñ é 😀"),       QStringLiteral("@@@@ [x] {y}"),  QStringLiteral(" "),
    QStringLiteral("%1 \t"),       QStringLiteral("</translation>")};

inline CSearch condition(std::vector<QString> keywords, unsigned char scope = 0, unsigned char method = 1) {
    CSearch search;
    search.keywords = std::move(keywords);
    search.scope = scope;
    search.method = method;
    return search;
}

}  // namespace wirepane
