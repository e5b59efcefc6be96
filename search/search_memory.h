// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/cfg_io.h"
#include "search/keyword_list.h"
#include "search/recent_searches.h"

// What a view keeps of its user's searches: every keyword ever typed, and the searches made last.
struct SearchMemory {
    KeywordList keywordPool;
    RecentSearches recent;

    // What is absent is empty; entries that are damaged, repeat, or are too many are left out.
    static SearchMemory read(const TRVCfgIO2& reader, const ViewSettingPath& path);
    void write(TRVCfgIO2& writer, const ViewSettingPath& path) const;
};
