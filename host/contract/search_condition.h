// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace wirepane {

// The language that a condition is written in (docs/search.md).
enum class SearchLanguage : unsigned char {
    Plain = 0,  // keywords, each of them plain text
    Query = 1,  // one query
};

}  // namespace wirepane

// A search condition. The keywords keep their order of insertion. Those of a warning term may repeat, as its
// user wrote them; others do not.
struct WIREPANE_CONTRACT_EXPORT CSearch {
    std::vector<QString> keywords;
    unsigned char scope = 0;           // 0 headlines, 1 stories, 2 headlines and stories
    unsigned char method = 0;          // 0 not set, 1 all keywords must match, 2 any keyword may match
    std::int64_t time = 0;             // when it was composed, seconds since 1970; not part of equality
    std::vector<CSymbolInfo> symbols;  // narrows the search to stories of these symbols; empty: no narrowing
    bool keywordSearch = false;        // true: a shown story has the keywords marked
    // Of a query the only keyword is its text, the scope is that of its texts without a field, and there is
    // no method.
    wirepane::SearchLanguage language = wirepane::SearchLanguage::Plain;

    bool isQuery() const { return language == wirepane::SearchLanguage::Query; }
    // The text of a query; empty for others.
    QString query() const { return isQuery() && !keywords.empty() ? keywords.front() : QString(); }

    // The condition as a text of one line, whatever its keywords hold. A language that it does not name is
    // plain.
    QString GetString() const;
    // Reads back what GetString made. False, and the condition unchanged, for any other text; an empty
    // keyword is left out.
    bool LoadStringA(const QString& text);
};

// Two conditions ask for the same: language, keywords in order, scope, method and symbols are equal.
inline bool operator==(const CSearch& a, const CSearch& b) {
    return a.keywords == b.keywords && a.scope == b.scope && a.method == b.method && a.symbols == b.symbols &&
           a.language == b.language;
}
