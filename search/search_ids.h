// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_choices.h"

#include <array>

namespace wirepane {

// Numbers of the controls of the search dialogs.
namespace search_ids {

inline constexpr int ok = 1;
inline constexpr int cancel = 2;
inline constexpr int advancedSearch = 2013;  // the dialog itself

// Keyword entry.
inline constexpr int pool = 2059;
inline constexpr int keywords = 2060;
inline constexpr int keywordEdit = 2061;
inline constexpr int addTyped = 2063;
inline constexpr int removeFromPool = 2065;
inline constexpr int add = 2066;
inline constexpr int remove = 2067;
inline constexpr int methodAnd = 2071;
inline constexpr int methodOr = 2072;
inline constexpr int keywordsCaption = 2080;
inline constexpr int symbolEdit = 2086;
inline constexpr int candidates = 2093;
inline constexpr int tabs = 2094;
inline constexpr int picker = 9000;
inline constexpr int excluded = 9001;
inline constexpr int exclude = 9002;
inline constexpr int methodQuery = 9003;
inline constexpr int excludedCaption = 9004;

// Advanced search.
inline constexpr int scopeHeadlines = 2068;
inline constexpr int scopeStories = 2069;
inline constexpr int scopeBoth = 2070;
inline constexpr int recent = 2074;
inline constexpr int removeAll = 2076;
inline constexpr int scopeCaption = 2081;
inline constexpr int methodCaption = 2082;
inline constexpr int recentCaption = 2083;

// Key sets.
inline constexpr int newsKeySearch = 2014;  // the dialog itself
inline constexpr int allNewsTypes = 2034;
inline constexpr int newsTypes = 2062;
inline constexpr int removeAllOfKeySet = 2068;
inline constexpr int newsKeyTitle = 2088;
inline constexpr int keySets = 2089;
inline constexpr int saveKeySet = 2091;
inline constexpr int deleteKeySets = 2092;
inline constexpr int newsTypesCaption = 2095;
inline constexpr int allKeySets = 2096;

inline constexpr int rehearseKeySet = 9005;
inline constexpr int alertOfKeySet = 9014;

// Warning terms.
inline constexpr int warnTerms = 2015;  // the dialog itself
inline constexpr int addWarning = 3;
inline constexpr int editWarning = 4;
inline constexpr int warnings = 2047;
inline constexpr int alertOfWarning = 9015;
inline constexpr int deleteWarning = 2051;

// One warning term.
inline constexpr int warnTermConfig = 2016;  // the dialog itself
inline constexpr int warningEdit = 2043;
inline constexpr int warningAnd = 2057;
inline constexpr int warningHeadlines = 2058;
inline constexpr int warningOr = 2059;
inline constexpr int warningStories = 2060;
inline constexpr int warningBoth = 2061;

inline constexpr int candidateDelayMs = 200;

// The buttons that a method or a scope is chosen with, in their order: where a search is composed, a key set,
// and one warning term.
template <class Number>
struct ChoiceButton {
    Number number;
    int id;
};
using MethodButton = ChoiceButton<SearchMethod>;
using ScopeButton = ChoiceButton<SearchScope>;
inline constexpr std::array methodButtons{MethodButton{SearchMethod::Any, methodOr},
                                          MethodButton{SearchMethod::All, methodAnd}};
inline constexpr std::array keySetMethodButtons{MethodButton{SearchMethod::Any, methodOr},
                                                MethodButton{SearchMethod::All, methodAnd}};
inline constexpr std::array warningMethodButtons{MethodButton{SearchMethod::All, warningAnd},
                                                 MethodButton{SearchMethod::Any, warningOr}};
inline constexpr std::array scopeButtons{ScopeButton{SearchScope::Headlines, scopeHeadlines},
                                         ScopeButton{SearchScope::Stories, scopeStories},
                                         ScopeButton{SearchScope::Both, scopeBoth}};
inline constexpr std::array warningScopeButtons{ScopeButton{SearchScope::Headlines, warningHeadlines},
                                                ScopeButton{SearchScope::Stories, warningStories},
                                                ScopeButton{SearchScope::Both, warningBoth}};

}  // namespace search_ids

}  // namespace wirepane
