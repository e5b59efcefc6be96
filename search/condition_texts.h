// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "search/search_keys.h"

#include <QStringList>

#include <array>

// How the search dialogs show scopes and methods: as radio buttons, and as words in their lists.

namespace conditions {
inline constexpr int methodAll = 1;
inline constexpr int methodAny = 2;
}  // namespace conditions

// By scope; and any, all.
inline constexpr std::array scopeKeys{search_keys::scopeHeadlines, search_keys::scopeStories,
                                      search_keys::scopeBoth};
inline constexpr std::array methodKeys{search_keys::methodOr, search_keys::methodAnd};

// Without the mark of an access key, also where it stands in brackets behind the text. An unknown scope is
// both; every method that is not "all" is "any".
QString ScopeText(int scope);
QString MethodText(int method);
// All that there are.
QStringList ScopeTexts();
QStringList MethodTexts();
