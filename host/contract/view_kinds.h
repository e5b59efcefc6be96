// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// What news a view is for, and with what: the numbers of NewsViewAccess::vSetNewsType and of stored views.
// Any other number: like Bare, but the view keeps no keys for itself.
enum class NewsType : int {
    Full = 0,        // all modes, with an embedded story pane and page buttons
    TwoColumns = 1,  // the news of the link group's symbol alone, without category; never takes the keyboard
    Symbol = 2,      // the news of the link group's symbol alone
    Bare = 3,        // all modes, without pane and page buttons
};

inline constexpr int lastNewsType = 3;

constexpr bool isOfOneSymbol(NewsType type) {
    return type == NewsType::TwoColumns || type == NewsType::Symbol;
}

// How a view shows the story of a headline beside its grid: the numbers of the setting "NewsShowType".
enum class StoryShowType : unsigned short { None = 0, Right = 1, Below = 2 };

inline constexpr int storyShowTypes = 3;

// The type of a number that counts on, round and round.
constexpr StoryShowType storyShowTypeOf(unsigned short number) {
    return static_cast<StoryShowType>(number % storyShowTypes);
}

}  // namespace wirepane
