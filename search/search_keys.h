// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

namespace wirepane {

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
inline constexpr QLatin1StringView method{"IDS_DIALOG-DEAL-SEARCH_CONDITION"};
inline constexpr QLatin1StringView query{"IDS_DIALOG-DEAL-SEARCH_QUERY_BUTTON"};
inline constexpr QLatin1StringView excluded{"IDS_DIALOG-DEAL-SEARCH_NONE_OF_THESE"};
inline constexpr QLatin1StringView exclude{"IDS_DIALOG-DEAL-SEARCH_EXCLUDE_BUTTON"};
inline constexpr QLatin1StringView recent{"IDS_DIALOG-DEAL-SEARCH_NEAR10FILTER"};
inline constexpr QLatin1StringView scopeColumn{"IDS_DIALOG-DEAL-SEARCH_SEARCH_SCOPE"};
inline constexpr QLatin1StringView methodColumn{"IDS_DIALOG-DEAL-SEARCH_SEARCH_METHOD"};
inline constexpr QLatin1StringView contentsColumn{"IDS_DIALOG-DEAL-SEARCH_SEARCH_CONTENTS"};
inline constexpr QLatin1StringView ok{"IDS_DIALOG-DEAL-SEARCH_IDOK"};
inline constexpr QLatin1StringView cancel{"IDS_DIALOG-DEAL-SEARCH_WARNING_IDCANCEL"};

// Key sets.
inline constexpr QLatin1StringView relationTitle{"IDS_DIALOG-DEAL-SEARCH_RELATION_TITLE"};
inline constexpr QLatin1StringView addKeySet{"IDS_DIALOG-DEAL-SEARCH_ADD_KEYSET"};
inline constexpr QLatin1StringView editKeySet{"IDS_DIALOG-DEAL-SEARCH_EDIT_KEYSET"};
inline constexpr QLatin1StringView deleteKeySets{"IDS_DIALOG-DEAL-SEARCH_DEL_KEYSET"};
inline constexpr QLatin1StringView newsType{"IDS_DIALOG-DEAL-SEARCH_NEWSTYPE"};
inline constexpr QLatin1StringView allNewsTypes{"IDS_DIALOG-DEAL-SEARCH_ALL_NEWSTYPE"};
inline constexpr QLatin1StringView selectAllNewsTypes{"IDS_DIALOG-DEAL-SEARCH_NEWS_SELALL"};
inline constexpr QLatin1StringView selectAllKeySets{"IDS_DIALOG-DEAL-SEARCH_KEYSET_SELALL"};
inline constexpr QLatin1StringView noNewsType{"IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSTYPE"};
inline constexpr QLatin1StringView noKeyword{"IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSKEY"};
// "%1": how many.
inline constexpr QLatin1StringView askDeleteKeySets{"IDS_DIALOG-DEAL-SEARCH_REQDEL_KEY"};
inline constexpr QLatin1StringView askRemoveAllOfKeySet{"IDS_DIALOG-DEAL-SEARCH_REQDELALL_KEY"};
inline constexpr QLatin1StringView capitalsNote{"IDS_DIALOG-DEAL-SEARCH_CAPITALS_NOTE"};

inline constexpr QLatin1StringView rehearse{"IDS_DIALOG-DEAL-SEARCH_REHEARSE"};
inline constexpr QLatin1StringView alertMe{"IDS_DIALOG-DEAL-SEARCH_ALERT_ME"};

// Warning terms.
inline constexpr QLatin1StringView warningTitle{"IDS_DIALOG-DEAL-SEARCH_WARNING_TITLE"};
inline constexpr QLatin1StringView addWarning{"IDS_DIALOG-DEAL-SEARCH_WARNING_ADD"};
inline constexpr QLatin1StringView editWarning{"IDS_DIALOG-DEAL-SEARCH_WARNING_EDIT"};
inline constexpr QLatin1StringView deleteWarning{"IDS_DIALOG-DEAL-SEARCH_WARNING_DEL"};
inline constexpr QLatin1StringView noWarningSelected{"IDS_DIALOG-DEAL-SEARCH_ERRMSG"};
inline constexpr QLatin1StringView warningItemTitle{"IDS_DIALOG-DEAL-SEARCH_WARNING_ITEM_TITLE"};
inline constexpr QLatin1StringView warningHint{"IDS_DIALOG-DEAL-SEARCH_WARNING_HINT"};
inline constexpr QLatin1StringView warningOk{"IDS_DIALOG-DEAL-SEARCH_WARNING_IDOK"};

}  // namespace search_keys

}  // namespace wirepane
