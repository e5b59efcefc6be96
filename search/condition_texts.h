// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"
#include "search/dialog_controls.h"
#include "search/search_ids.h"

#include <QStringList>

#include <span>
#include <vector>

namespace wirepane {

// How the search dialogs show scopes and methods: as radio buttons, and as words in their lists.

// The buttons stand in their group by the numbers that conditions carry.
std::vector<Choice> choicesOf(std::span<const search_ids::MethodButton> buttons);
std::vector<Choice> choicesOf(std::span<const search_ids::ScopeButton> buttons);
// One more for queries, where they are taken.
std::vector<Choice> withQuery(std::vector<Choice> choices, bool takesQueries);

// Without the mark of an access key, also where it stands in brackets behind the text. An unknown scope is
// both; an unknown method is "any"; a query has a word
// of its own.
QString scopeText(int scope);
QString searchMethodText(int method, SearchLanguage language = SearchLanguage::Plain);
// All that there are.
QStringList scopeTexts();
QStringList methodTexts();

}  // namespace wirepane
