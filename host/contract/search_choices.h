// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

#include <array>

namespace wirepane {

// How the keywords of a search work together: the numbers that conditions (CSearch) and key sets (CNewsKey)
// carry and store.
enum class SearchMethod : unsigned char {
    NotSet = 0,  // of a condition that nobody has composed yet
    All = 1,     // all keywords must match
    Any = 2,     // one suffices
};

// Where its keywords are looked for.
enum class SearchScope : unsigned char {
    Headlines = 0,
    Stories = 1,
    Both = 2,  // each keyword in the headline or in the story
};

// What is told and typed for a method or a scope.
template <class Number>
struct SearchChoice {
    Number number;
    QLatin1StringView name;    // language key
    QLatin1StringView option;  // of the command line; empty: what holds without one
    QLatin1StringView help;    // of the option
};
using MethodChoice = SearchChoice<SearchMethod>;
using ScopeChoice = SearchChoice<SearchScope>;

// All that there are, by rising numbers without a gap. Dialogs, the texts of conditions and the command line
// read them here. Key sets have "all" and "any" alone.
inline constexpr std::array searchMethods{
    MethodChoice{SearchMethod::All, QLatin1StringView("IDS_DIALOG-DEAL-SEARCH_AND_BUTTON"), {}, {}},
    MethodChoice{SearchMethod::Any, QLatin1StringView("IDS_DIALOG-DEAL-SEARCH_OR_BUTTON"),
                 QLatin1StringView("any"), QLatin1StringView("One keyword is enough.")}};
inline constexpr std::array searchScopes{
    ScopeChoice{SearchScope::Headlines, QLatin1StringView("IDS_DIALOG-DEAL-SEARCH_HEADLINE_SEARCH"),
                QLatin1StringView("title"), QLatin1StringView("Searches titles only.")},
    ScopeChoice{SearchScope::Stories, QLatin1StringView("IDS_DIALOG-DEAL-SEARCH_STORY_SEARCH"),
                QLatin1StringView("story"), QLatin1StringView("Searches stories only.")},
    ScopeChoice{
        SearchScope::Both, QLatin1StringView("IDS_DIALOG-DEAL-SEARCH_HEARLINE_AND_STORY_SEARCH"), {}, {}}};

template <class Number>
constexpr unsigned char numberOf(Number choice) {
    return static_cast<unsigned char>(choice);
}

inline constexpr unsigned char lastSearchMethod = numberOf(searchMethods.back().number);
inline constexpr unsigned char lastSearchScope = numberOf(searchScopes.back().number);

// Whether a number is that of a method; "not set" is none.
constexpr bool isSearchMethod(int number) {
    return number >= numberOf(searchMethods.front().number) && number <= lastSearchMethod;
}
// As lists and dialogs show a number: one that is no method as "any".
constexpr SearchMethod shownMethod(int number) {
    return isSearchMethod(number) ? static_cast<SearchMethod>(number) : SearchMethod::Any;
}
// The scope of a number: one that is no scope means both.
constexpr SearchScope scopeOf(int number) {
    return number >= 0 && number <= lastSearchScope ? static_cast<SearchScope>(number) : SearchScope::Both;
}

}  // namespace wirepane
