// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/news_key.h"
#include "search/keyword_list.h"
#include "search/recent_searches.h"
#include "search/warning_items.h"

class TRVCfgIO2;

namespace wirepane {
struct ViewSettingPath;

// What a view keeps of its user's searches: every keyword ever typed, the searches made last, and the stored
// conditions of its standing searches.
struct SearchMemory {
    KeywordList keywordPool;
    RecentSearches recent;
    std::vector<CNewsKey> keySets;
    WarningItems warnings;

    // What is absent is empty; entries that are damaged, repeat, or are too many are left out.
    static SearchMemory read(const TRVCfgIO2& reader, const ViewSettingPath& path);
    void write(TRVCfgIO2& writer, const ViewSettingPath& path) const;
};

}  // namespace wirepane
