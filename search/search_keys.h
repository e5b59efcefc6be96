// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

// The language keys of the search dialogs.
namespace search_keys {

inline constexpr QLatin1StringView title{"IDS_DIALOG-DEAL-SEARCH_TITLE"};
inline constexpr QLatin1StringView keywordTab{"IDS_DIALOG-DEAL-SEARCH_GROUP1"};
inline constexpr QLatin1StringView symbolTab{"IDS_DIALOG-DEAL-SEARCH_SYMBOL"};
inline constexpr QLatin1StringView keywordHint{"IDS_DIALOG-DEAL-SEARCH_KEYWORD_HINT"};
inline constexpr QLatin1StringView symbolHint{"IDS_DIALOG-DEAL-SEARCH_SYMBOL_HINT"};
inline constexpr QLatin1StringView picker{"IDS_DIALOG-DEAL-SEARCH_PICKER"};
inline constexpr QLatin1StringView removeFromPool{"IDS_DIALOG-DEAL-SEARCH_DEL_KEY"};
inline constexpr QLatin1StringView add{"IDS_DIALOG-DEAL-SEARCH_ADD_BUTTON"};
inline constexpr QLatin1StringView remove{"IDS_DIALOG-DEAL-SEARCH_DEL_BUTTON"};
inline constexpr QLatin1StringView removeAll{"IDS_DIALOG-DEAL-SEARCH_DELALL_BUTTON"};
inline constexpr QLatin1StringView askRemoveAll{"IDS_DIALOG-DEAL-SEARCH_REQDELALL"};
inline constexpr QLatin1StringView keywords{"IDS_DIALOG-DEAL-SEARCH_GROUP2"};
inline constexpr QLatin1StringView scope{"IDS_DIALOG-DEAL-SEARCH_RANGE"};
inline constexpr QLatin1StringView scopeHeadlines{"IDS_DIALOG-DEAL-SEARCH_HEADLINE_SEARCH"};
inline constexpr QLatin1StringView scopeStories{"IDS_DIALOG-DEAL-SEARCH_STORY_SEARCH"};
inline constexpr QLatin1StringView scopeBoth{"IDS_DIALOG-DEAL-SEARCH_HEARLINE_AND_STORY_SEARCH"};
inline constexpr QLatin1StringView method{"IDS_DIALOG-DEAL-SEARCH_CONDITION"};
inline constexpr QLatin1StringView methodAnd{"IDS_DIALOG-DEAL-SEARCH_AND_BUTTON"};
inline constexpr QLatin1StringView methodOr{"IDS_DIALOG-DEAL-SEARCH_OR_BUTTON"};
inline constexpr QLatin1StringView recent{"IDS_DIALOG-DEAL-SEARCH_NEAR10FILTER"};
inline constexpr QLatin1StringView scopeColumn{"IDS_DIALOG-DEAL-SEARCH_SEARCH_SCOPE"};
inline constexpr QLatin1StringView methodColumn{"IDS_DIALOG-DEAL-SEARCH_SEARCH_METHOD"};
inline constexpr QLatin1StringView contentsColumn{"IDS_DIALOG-DEAL-SEARCH_SEARCH_CONTENTS"};
inline constexpr QLatin1StringView ok{"IDS_DIALOG-DEAL-SEARCH_IDOK"};
inline constexpr QLatin1StringView cancel{"IDS_DIALOG-DEAL-SEARCH_WARNING_IDCANCEL"};

}  // namespace search_keys
