// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace wirepane {

// The words of a condition as its user can take them out one by one: its keywords, or the parts of a query
// as they are written. A query that is one thing in brackets, or has a fault, is one part.
std::vector<QString> wordsOf(const CSearch& condition);
// Whether one of the words is enough.
bool isAnyEnough(const CSearch& condition);
// The condition without one of its words, or without one of the symbols that it is narrowed to. Without its
// last word it has no keywords.
CSearch withoutWord(const CSearch& condition, std::size_t word);
CSearch withoutSymbol(CSearch condition, std::size_t symbol);
// The condition on all days; nothing where no part of it names days that all of it has to be of, or nothing
// else is left.
std::optional<CSearch> withoutDays(const CSearch& condition);

}  // namespace wirepane
