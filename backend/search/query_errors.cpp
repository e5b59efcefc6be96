// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/query_errors.h"

#include <array>

namespace wirepane {

namespace {

using namespace query_errors;

// In the order of QueryFaultKind.
constexpr std::array<const ErrorCode*, std::size_t(QueryFaultKind::Count)> codes{
    &empty, &missing, &openQuote,  &openBracket,  &closeBracket, &unknownField, &fieldValue, &fieldWithin,
    &day,   &near,    &nearNumber, &operatorWord, &tooLong,      &tooMany,      &tooDeep,    &notOfHeadlines};

}  // namespace

Error errorOf(const QueryFault& fault) {
    const ErrorCode& code = *codes.at(std::size_t(fault.kind));
    std::vector<ErrorArgument> arguments;
    if (fault.kind != QueryFaultKind::Empty)
        arguments = {ErrorArgument(fault.character), ErrorArgument(fault.found)};
    return {code, std::move(arguments)};
}

}  // namespace wirepane
