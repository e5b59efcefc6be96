// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/view_settings.h"

#include "host/contract/cfg_io.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString functionsKey = u"EnabledFunctions"_s;
const QString showTypeKey = u"NewsShowType"_s;
const QString showCategoryKey = u"ShowCategory"_s;
const QString focusedTabKey = u"FocusedTab"_s;
const QString symbolKey = u"SymbolID"_s;
const QString symbolServiceKey = u"SymbolService"_s;
const QString categoryKey = u"CategoryID"_s;
const QString quoteSortingKey = u"QuoteSorting"_s;
const QString columnWidthsKey = u"ColumnWidths"_s;
const QString paneSharesKey = u"PaneShares"_s;
const QString storySizeKey = u"StorySize"_s;
const QString windowPlacesKey = u"StoryWindowPlaces"_s;
const QString namedSearchKey = u"NamedSearch"_s;

std::optional<QuoteTable::Sorting> sortingOf(int number) {
    if (number == 0 || number < -quoteColumns || number > quoteColumns)
        return std::nullopt;
    return QuoteTable::Sorting{static_cast<QuoteColumn>(std::abs(number) - 1), number < 0};
}

int numberOf(const std::optional<QuoteTable::Sorting>& sorting) {
    const int column = sorting ? static_cast<int>(sorting->column) + 1 : 0;
    return sorting && sorting->descending ? -column : column;
}

}  // namespace

ViewSettings ViewSettings::read(const TRVCfgIO2& reader, const ViewSettingPath& path, int defaultTab) {
    ViewSettings settings;
    int mask = 0;
    if (reader.GetViewInfo(path, functionsKey, mask))
        settings.functions = knownFunctions(static_cast<std::uint32_t>(mask));
    unsigned short showType = 0;
    if (reader.GetViewInfo(path, showTypeKey, showType) && showType < storyShowTypes)
        settings.newsShowType = static_cast<StoryShowType>(showType);
    reader.GetViewInfo(path, showCategoryKey, settings.showCategory);
    settings.focusedTab = defaultTab;
    reader.GetViewInfo(path, focusedTabKey, settings.focusedTab);
    reader.GetViewInfo(path, symbolKey, settings.symbolId);
    int market = 0;
    if (reader.GetViewInfo(path, symbolServiceKey, market) && market > 0 &&
        market <= std::numeric_limits<unsigned char>::max())
        settings.symbolService = static_cast<unsigned char>(market);
    reader.GetViewInfo(path, categoryKey, settings.categoryId);
    int quoteSorting = 0;
    reader.GetViewInfo(path, quoteSortingKey, quoteSorting);
    settings.quoteSorting = sortingOf(quoteSorting);
    reader.GetViewInfo(path, columnWidthsKey, settings.columnWidths);
    reader.GetViewInfo(path, storySizeKey, settings.storySize);
    settings.storySize = std::clamp(settings.storySize, smallestStorySize, largestStorySize);
    reader.GetViewInfo(path, windowPlacesKey, settings.storyWindowPlaces);
    QString paneShares;
    reader.GetViewInfo(path, paneSharesKey, paneShares);
    settings.paneShares = PaneShares::restored(paneShares);
    reader.GetViewInfo(path, namedSearchKey, settings.namedSearch);
    settings.options = ViewOptions::read(reader, path);
    return settings;
}

const ViewOptions& ViewSettings::turnPrices() {
    constexpr int offered = 1;
    constexpr int shown = 2;
    const int setting = options.value(ViewOption::PriceColumns);
    if (setting > 0)
        options.set(ViewOption::PriceColumns, setting == shown ? offered : shown);
    return options;
}

void ViewSettings::write(TRVCfgIO2& writer, const ViewSettingPath& path) const {
    writer.setViewInfo(path, functionsKey, static_cast<int>(functions));
    writer.setViewInfo(path, showTypeKey, static_cast<int>(newsShowType));
    writer.setViewInfo(path, showCategoryKey, showCategory);
    writer.setViewInfo(path, focusedTabKey, focusedTab);
    writer.setViewInfo(path, symbolKey, symbolId);
    if (symbolService)
        writer.setViewInfo(path, symbolServiceKey, int{*symbolService});
    writer.setViewInfo(path, categoryKey, categoryId);
    writer.setViewInfo(path, quoteSortingKey, numberOf(quoteSorting));
    if (options[ViewOption::MeasuredColumns])
        writer.setViewInfo(path, columnWidthsKey, columnWidths);
    if (options[ViewOption::MovablePanes])
        writer.setViewInfo(path, paneSharesKey, paneShares.keptText());
    if (options[ViewOption::TypesetStory])
        writer.setViewInfo(path, storySizeKey, storySize);
    if (options[ViewOption::StoryWindow])
        writer.setViewInfo(path, windowPlacesKey, storyWindowPlaces);
    if (options[ViewOption::PriceColumns])
        writer.setViewInfo(path, QString(rowOf(ViewOption::PriceColumns).key),
                           options.value(ViewOption::PriceColumns));
    if (options[ViewOption::NamedSearches])
        writer.setViewInfo(path, namedSearchKey, namedSearch);
}

StorySetting storySettingOf(const ViewSettings& settings) {
    return {settings.options[ViewOption::TypesetStory], settings.storySize,
            settings.options[ViewOption::RecordMarks], settings.options[ViewOption::MarkHits]};
}

}  // namespace wirepane
