// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

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

// Without the mark of an access key, also where it stands in brackets behind the text. An unknown scope is
// both; an unknown method is "any".
QString scopeText(int scope);
QString searchMethodText(int method);
// All that there are.
QStringList scopeTexts();
QStringList methodTexts();

}  // namespace wirepane
