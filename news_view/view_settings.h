// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/view_kinds.h"
#include "host/contract/view_options.h"
#include "host/views/quote_table.h"
#include "news_view/mode_table.h"
#include "news_view/pane_shares.h"
#include "story/story_size.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

class TRVCfgIO2;

namespace wirepane {
struct ViewSettingPath;

// The settings of a view that are plain values; what is absent or makes no sense has its default. The
// services keep their own (NewsServices).
struct ViewSettings {
    std::uint32_t functions = defaultFunctionMask;      // "EnabledFunctions": the enabled-function mask
    StoryShowType newsShowType = StoryShowType::Right;  // "NewsShowType"
    bool showCategory = true;                           // "ShowCategory"
    int focusedTab = 0;                                 // "FocusedTab": the function mode to open with
    QString symbolId;                                   // "SymbolID"
    std::optional<unsigned char> symbolService;         // "SymbolService": the market of that symbol
    QString categoryId;                                 // "CategoryID"
    // "QuoteSorting": the number of the column from 1 on, negative: descending; 0: none
    std::optional<QuoteTable::Sorting> quoteSorting;
    // "ColumnWidths": by list, what the user has given its columns by hand (ColumnWidths::keptText); only a
    // view that measures its columns writes it
    QStringList columnWidths;
    int storySize = plainStorySize;  // "StorySize": of typeset stories, in hundredths
    QStringList storyWindowPlaces;   // "StoryWindowPlaces": of the story window, by screen (WindowPlaces)
    // "PaneShares": where the user has moved the edges between list, story and quotes (PaneShares::keptText)
    PaneShares paneShares;
    // "NamedSearch": the name of the search that the search mode shows; only a view with named searches
    // writes it
    QString namedSearch;
    ViewOptions options;  // the host's choice: never written back, but for what turnPrices() turns

    // `defaultTab`: the focused tab when none is stored.
    static ViewSettings read(const TRVCfgIO2& reader, const ViewSettingPath& path, int defaultTab);
    // Shows the columns of prices, or hides them, where the settings offer them. The options then.
    const ViewOptions& turnPrices();
    void write(TRVCfgIO2& writer, const ViewSettingPath& path) const;
};

// How the stories of a view with these settings are set.
StorySetting storySettingOf(const ViewSettings& settings);

}  // namespace wirepane
