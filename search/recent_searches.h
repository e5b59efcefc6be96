// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <vector>

namespace wirepane {

// Language, scope and method are equal, and the keywords are the same in whatever order.
bool asksTheSame(const CSearch& a, const CSearch& b);

// The condition without the symbols that it is narrowed to: dialogs show none, and what they edit and keep
// has none.
CSearch forEverySymbol(CSearch condition);

// The searches that were made last, oldest first.
using RecentSearches = std::vector<CSearch>;
inline constexpr std::size_t mostRecentSearches = 10;

// Appends the condition unless one that asks the same is there, which stays where it is; the oldest gives way
// when the list is full. It is kept for every symbol.
void keepRecentSearch(RecentSearches& recent, const CSearch& condition);

}  // namespace wirepane
