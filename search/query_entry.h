// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/query/search_query.h"
#include "host/contract/search_choices.h"
#include "host/contract/search_condition.h"
#include "search/keyword_list.h"

#include <optional>

class QWidget;

namespace wirepane {

// Of a choice of methods: the keywords are pieces of a query.
inline constexpr int queryChoice = lastSearchMethod + 1;

// What stands in the lists of a dialog.
struct EntryLists {
    KeywordList keywords;
    KeywordList excluded;  // none of these
    int method = 0;        // the number of a SearchMethod, or queryChoice

    bool operator==(const EntryLists&) const = default;
};
// What they say in a condition. That of a query has one keyword.
struct EnteredCondition {
    SearchLanguage language = SearchLanguage::Plain;
    KeywordList keywords;
    int method = 0;
};

// The query that asks for what plain keywords ask for, by the number of their SearchMethod. Quotation marks
// in them are blanks.
QString queryOfKeywords(const KeywordList& keywords, int method);
// Lists without exclusions and without a query are plain keywords; others make a query, which may be one with
// a fault. Quotation marks in keywords that are put in such are blanks.
EnteredCondition conditionOfLists(const EntryLists& lists);
// The lists that make such a condition. A query that lists cannot say is the only keyword.
EntryLists listsOfCondition(const EnteredCondition& condition);

// The sentence about a fault, with its place.
QString textOf(const QueryFault& fault);
// As which language a text is to be taken that was meant as a query: of one with a fault the user, who is
// told its place, may say that it is plain text. Nothing: he wants to go on with it.
std::optional<SearchLanguage> askLanguage(QWidget* below, const QString& query,
                                          QueryUse use = QueryUse::News);
// A condition after such a question. Plain text means all of `keywords` then.
std::optional<EnteredCondition> askCondition(QWidget* below, EnteredCondition condition,
                                             const KeywordList& keywords, QueryUse use = QueryUse::News);

}  // namespace wirepane
