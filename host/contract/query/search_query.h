// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/query/query_days.h"

#include <QLatin1StringView>
#include <QString>

#include <variant>
#include <vector>

// The language of search queries (docs/search.md): what one reads as. Pure; any thread.

namespace wirepane {

// Where a text is looked for.
enum class QueryField { Anywhere, Title, Story };

// What has become of news: by the user's hand, or by its publisher's.
enum class QueryState { Unread, Read, Starred, Withdrawn };

struct QueryNode {
    enum class Kind {
        Text,     // `text`, in `field`
        Near,     // two texts of one field, with `near` words at most between them
        Topic,    // a name or a number
        Service,  // a name or a number
        Symbol,   // a code, a code behind its market and a colon, or a name
        Days,     // `days`
        State,    // `state`
        All,      // all parts; two at least
        Any,      // one of them; two at least
        Not       // not its one part
    };
    Kind kind = Kind::All;
    qsizetype position = 0;  // in the query, in UTF-16 code units; with `length` the characters that say
                             // it, with its sign, its field and its brackets
    qsizetype length = 0;
    QString text;
    QueryField field = QueryField::Anywhere;
    bool isCut = false;  // the last word of the text may go on
    int near = 0;
    QueryDays days;
    QueryState state = QueryState::Unread;
    std::vector<QueryNode> parts;
};

// Whether a part of the query asks for news of this state, or for news that is not.
WIREPANE_CONTRACT_EXPORT bool asksFor(const QueryNode& query, QueryState state);

// Whether a word cut short stands in what the query leaves out.
WIREPANE_CONTRACT_EXPORT bool leavesOutCut(const QueryNode& query);

enum class QueryFaultKind {
    Empty,
    Missing,  // nothing to look for where something should stand
    OpenQuote,
    OpenBracket,
    CloseBracket,
    UnknownField,
    FieldValue,
    FieldWithin,
    Day,
    Near,
    NearNumber,
    OperatorWord,
    TooLong,
    TooMany,
    TooDeep,
    NotOfHeadlines,  // what a headline alone cannot answer
    Count
};

struct QueryFault {
    QueryFaultKind kind = QueryFaultKind::Empty;
    qsizetype position = 0;   // in UTF-16 code units, from 0
    QString found;            // what stands there
    qsizetype character = 1;  // the place as one counts it: an ideograph of two code units is one
};

inline constexpr qsizetype longestQuery = 2000;  // UTF-16 code units
inline constexpr int mostQueryTexts = 200;       // texts and fields
inline constexpr int deepestQuery = 20;          // brackets within one another
inline constexpr int mostWordsBetween = 1000;    // of NEAR

using ReadQuery = std::variant<QueryNode, QueryFault>;

// What a query is tried on.
enum class QueryUse {
    News,       // knows the whole language
    Headlines,  // as they come, without their stories: no story:, NEAR, days, is: and words cut short
    Titles,     // the same for headlines that are there; words may be cut short
    Alerts      // as for headlines, with their stories once they have come
};

// Reads a query of any length and content.
WIREPANE_CONTRACT_EXPORT ReadQuery readQuery(const QString& query, QueryUse use = QueryUse::News);

// The language key of what is told about a fault: a text with %1 for the place, counted from 1, and %2 for
// what stands there.
WIREPANE_CONTRACT_EXPORT QLatin1StringView keyOf(QueryFaultKind kind);

}  // namespace wirepane
