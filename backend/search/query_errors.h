// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"
#include "host/contract/query/search_query.h"

namespace wirepane {
namespace query_errors {

// Why a query cannot be read: %1 is the place, counted from 1, %2 what stands there.
inline constexpr ErrorCode empty{"ERROR_QUERY_EMPTY", u"The query is empty."};
inline constexpr ErrorCode missing{"ERROR_QUERY_MISSING",
                                   u"At character %1 something to look for is missing (\"%2\")."};
inline constexpr ErrorCode openQuote{"ERROR_QUERY_OPEN_QUOTE",
                                     u"The quotation mark %2 at character %1 is never closed."};
inline constexpr ErrorCode openBracket{"ERROR_QUERY_OPEN_BRACKET",
                                       u"The bracket %2 at character %1 is never closed."};
inline constexpr ErrorCode closeBracket{"ERROR_QUERY_CLOSE_BRACKET",
                                        u"The bracket %2 at character %1 closes none that was opened."};
inline constexpr ErrorCode unknownField{
    "ERROR_QUERY_UNKNOWN_FIELD",
    u"There is no field \"%2\" (character %1). Put it in quotation marks to look for the text."};
inline constexpr ErrorCode fieldValue{"ERROR_QUERY_FIELD_VALUE",
                                      u"The field \"%2\" at character %1 lacks its value directly behind the "
                                      u"colon, or does not take this one."};
inline constexpr ErrorCode fieldWithin{
    "ERROR_QUERY_FIELD_WITHIN", u"The field \"%2\" at character %1 cannot stand within title: or story:."};
inline constexpr ErrorCode day{
    "ERROR_QUERY_DAY", u"\"%2\" at character %1 is no day such as 2026-03-02, 2026-03, today or -3d."};
inline constexpr ErrorCode near{"ERROR_QUERY_NEAR",
                                u"%2 at character %1 has to stand between two words or phrases."};
inline constexpr ErrorCode nearNumber{
    "ERROR_QUERY_NEAR_NUMBER",
    u"\"%2\" at character %1 names no number of words from 0 to 1000, as in NEAR/5."};
inline constexpr ErrorCode operatorWord{
    "ERROR_QUERY_OPERATOR_WORD",
    u"\"%2\" at character %1 is no sign: a blank means \"and\", | \"or\", - \"not\". Put it in quotation "
    u"marks to look for the word."};
inline constexpr ErrorCode tooLong{"ERROR_QUERY_TOO_LONG",
                                   u"The query is longer than %2 characters (character %1)."};
inline constexpr ErrorCode tooMany{
    "ERROR_QUERY_TOO_MANY",
    u"The query asks for too much from character %1 on (\"%2\"): at most 200 texts and fields."};
inline constexpr ErrorCode tooDeep{
    "ERROR_QUERY_TOO_DEEP", u"The bracket %2 at character %1 lies too deep: at most 20 within one another."};
inline constexpr ErrorCode notOfHeadlines{
    "ERROR_QUERY_NOT_OF_HEADLINES",
    u"\"%2\" at character %1 cannot be answered by a headline as it comes: key sets know words, phrases, "
    u"what is excluded, title:, topic:, service: and symbol:."};

}  // namespace query_errors

// What is told about a fault.
Error errorOf(const QueryFault& fault);

}  // namespace wirepane
