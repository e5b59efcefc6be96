// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/condition_texts.h"

#include "host/contract/lang_text.h"
#include "host/controls/plain_caption.h"
#include "search/query_entry.h"
#include "search/search_keys.h"

#include <algorithm>

namespace wirepane {

namespace {

QLatin1StringView nameKeyOf(const auto& table, auto number) {
    const auto row =
        std::find_if(table.begin(), table.end(), [&](const auto& choice) { return choice.number == number; });
    return row->name;
}

QString shown(QLatin1StringView nameKey) {
    return nameOfCaption(captionWithoutKey(langText(nameKey)));
}

QStringList allShown(const auto& table) {
    QStringList texts;
    for (const auto& choice : table)
        texts += shown(choice.name);
    return texts;
}

std::vector<Choice> choicesOf(const auto& table, const auto& buttons) {
    std::vector<Choice> choices;
    for (const auto& button : buttons)
        choices.push_back({button.id, numberOf(button.number), nameKeyOf(table, button.number)});
    return choices;
}

}  // namespace

std::vector<Choice> choicesOf(std::span<const search_ids::MethodButton> buttons) {
    return choicesOf(searchMethods, buttons);
}

std::vector<Choice> choicesOf(std::span<const search_ids::ScopeButton> buttons) {
    return choicesOf(searchScopes, buttons);
}

std::vector<Choice> withQuery(std::vector<Choice> choices, bool takesQueries) {
    if (takesQueries)
        choices.push_back({search_ids::methodQuery, queryChoice, search_keys::query});
    return choices;
}

QString scopeText(int scope) {
    return shown(nameKeyOf(searchScopes, scopeOf(scope)));
}

QString searchMethodText(int method, SearchLanguage language) {
    return shown(language == SearchLanguage::Query ? search_keys::query
                                                   : nameKeyOf(searchMethods, shownMethod(method)));
}

QStringList scopeTexts() {
    return allShown(searchScopes);
}

QStringList methodTexts() {
    return allShown(searchMethods);
}

}  // namespace wirepane
