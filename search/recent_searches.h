// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <vector>

// Scope and method are equal, and the keywords are the same in whatever order.
bool AsksTheSame(const CSearch& a, const CSearch& b);

// The condition without the symbols that it is narrowed to: dialogs show none, and what they edit and keep
// has none.
CSearch ForEverySymbol(CSearch condition);

// The searches that were made last, oldest first.
using RecentSearches = std::vector<CSearch>;
inline constexpr std::size_t mostRecentSearches = 10;

// Appends the condition unless one that asks the same is there, which stays where it is; the oldest gives way
// when the list is full. It is kept for every symbol.
void KeepRecentSearch(RecentSearches& recent, const CSearch& condition);
