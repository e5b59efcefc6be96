// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QLatin1StringView>

#include <array>
#include <cstddef>

class TRVCfgIO2;

namespace wirepane {
struct ViewSettingPath;

// What a host may ask of a view by its settings, beyond what a view does whose settings say nothing. Each is
// a setting of the view "TRVNewsCtrlView": a boolean, or a number of pixels. Absent or of another kind or out
// of range, it is off, or 0.
enum class ViewOption {
    WarningTermsStandFast,  // the list of warning terms does not follow the symbol of the link group
    RebuildFilteredLists,   // a list rebuilt under another list's filter is rebuilt when it is shown next
    KeepWarningRows,        // warning-term rows stay while a pushed headline is searched for
    WholeTitles,            // print, UTF-8 files and exports give titles whole, also those longer than a line
    KeySetsInAnyCase,       // key sets match whatever the case of their words
    ReadMissedTables,       // tables sent again unasked are taken by every list that they belong to
    SeparateServiceNames,   // the names of services without news are told apart from one another
    StretchTitles,          // the title column takes what room its list has left
    MarketNames,            // markets are named in the language in force
    AlignControls,          // controls keep one edge at either side, and bear icons beside their texts
    KeepServicesOpen,       // the list of services stays open while ticking
    TickNewServices,        // services that came after the settings were written are ticked
    EmptyStates,            // lists without rows offer a way out: the nearest day with news, a dialog
    KeepReadDay,            // a new news day takes no day away that is being read
    FollowNewest,           // the newest row is selected until the reader goes to one himself
    MeasuredColumns,        // columns as wide as their texts; widths set by hand are kept
    FinishedRows,           // a row under the pointer, a bar at the selected one, small quiet headings
    RecordMarks,            // what was corrected or withdrawn is marked, in its row and in its story
    ServiceTags,            // the service's short name at the right of a title
    TitleChips,             // the words of a flash or a correction at a title's head as a chip
    MarkArrivals,           // rows that have just come are tinted, and fade
    RowTips,                // tool tips of rows: title, service, topic, time with seconds, age
    RowMenu,          // the menu of a row offers copying and a window, and tells the keys of all it offers
    MovablePanes,     // the user can move the edges between list, story and quotes
    RowAir,           // what a row has over the height of its text; 0: rows of 16 pixels
    HeadingHeight,    // of the band of column headings; 0: 16
    RowGutter,        // before the first column's text
    TypesetStory,     // stories are typeset, in a size of their own; what is awaited says so in its place
    StoryMenu,        // a story has a menu of its own
    StoryWindow,      // the story window has tools, lies beside its list, is kept open when it is pinned
    SearchQueries,    // what is typed into the search box is a query; it takes blanks
    SearchLine,       // a line over what was found: the condition in parts that can be taken out, counts
    SearchAsYouType,  // the newest that are found are shown while the user types
    SearchHistory,    // the search box, wider, drops down what was searched for
    NamedSearches,    // the search box drops down searches that were given names, for all views of the host
    ReadingMarks,     // rows show what was read and starred, what is read is marked, in its row and for good
    FoldBursts,       // more headlines a minute of one topic than this fold under their newest; 0: none
    HoldLists,        // a key holds the list still, and lets it go on; what waits is counted at its top
    ArrivalPill,      // what came above the rows on screen is counted at the list's top; a click goes there
    UnreadCounts,     // tabs and the view's caption say how much of their lists is unread
    QuietSources,     // lists say which sources give no sign of life, and that none has anything new
    OtherYears,       // rows of another year than the present one show their day with its year
    RehearseKeySets,  // before a key set is kept it can be tried on the news of the last 30 days
    MarkHits,         // what was searched for is marked in titles and stories, a tint for each word
    AlertLooks,       // rows that alert rules of the host want stand out in their colours, with their tags
    SearchOffers,     // a search that finds nothing offers what would find something, with counts
    PriceColumns,     // 1: the menu offers what prices have done since the headlines; 2: lists show it
    Count
};

struct ViewOptionRow {
    ViewOption option;
    QLatin1StringView key;
    int most = 1;  // 1: a boolean; else a number from 0 to this
    int own = 1;   // what a host writes that wants it (ViewOptions::writeMissing)
};

// In the order of ViewOption.
inline constexpr std::array<ViewOptionRow, static_cast<std::size_t>(ViewOption::Count)> viewOptionTable{{
    {ViewOption::WarningTermsStandFast, QLatin1StringView("WarningTermsStandFast")},
    {ViewOption::RebuildFilteredLists, QLatin1StringView("RebuildFilteredLists")},
    {ViewOption::KeepWarningRows, QLatin1StringView("KeepWarningRows")},
    {ViewOption::WholeTitles, QLatin1StringView("WholeTitles")},
    {ViewOption::KeySetsInAnyCase, QLatin1StringView("KeySetsInAnyCase")},
    {ViewOption::ReadMissedTables, QLatin1StringView("ReadMissedTables")},
    {ViewOption::SeparateServiceNames, QLatin1StringView("SeparateServiceNames")},
    {ViewOption::StretchTitles, QLatin1StringView("StretchTitles")},
    {ViewOption::MarketNames, QLatin1StringView("MarketNames")},
    {ViewOption::AlignControls, QLatin1StringView("AlignControls")},
    {ViewOption::KeepServicesOpen, QLatin1StringView("KeepServicesOpen")},
    {ViewOption::TickNewServices, QLatin1StringView("TickNewServices")},
    {ViewOption::EmptyStates, QLatin1StringView("EmptyStates")},
    {ViewOption::KeepReadDay, QLatin1StringView("KeepReadDay")},
    {ViewOption::FollowNewest, QLatin1StringView("FollowNewest")},
    {ViewOption::MeasuredColumns, QLatin1StringView("MeasuredColumns")},
    {ViewOption::FinishedRows, QLatin1StringView("FinishedRows")},
    {ViewOption::RecordMarks, QLatin1StringView("RecordMarks")},
    {ViewOption::ServiceTags, QLatin1StringView("ServiceTags")},
    {ViewOption::TitleChips, QLatin1StringView("TitleChips")},
    {ViewOption::MarkArrivals, QLatin1StringView("MarkArrivals")},
    {ViewOption::RowTips, QLatin1StringView("RowTips")},
    {ViewOption::RowMenu, QLatin1StringView("RowMenu")},
    {ViewOption::MovablePanes, QLatin1StringView("MovablePanes")},
    {ViewOption::RowAir, QLatin1StringView("RowAir"), 32, 6},
    {ViewOption::HeadingHeight, QLatin1StringView("HeadingHeight"), 64, 22},
    {ViewOption::RowGutter, QLatin1StringView("RowGutter"), 32, 16},
    {ViewOption::TypesetStory, QLatin1StringView("TypesetStory")},
    {ViewOption::StoryMenu, QLatin1StringView("StoryMenu")},
    {ViewOption::StoryWindow, QLatin1StringView("StoryWindow")},
    {ViewOption::SearchQueries, QLatin1StringView("SearchQueries")},
    {ViewOption::SearchLine, QLatin1StringView("SearchLine")},
    {ViewOption::SearchAsYouType, QLatin1StringView("SearchAsYouType")},
    {ViewOption::SearchHistory, QLatin1StringView("SearchHistory")},
    {ViewOption::NamedSearches, QLatin1StringView("NamedSearches")},
    {ViewOption::ReadingMarks, QLatin1StringView("ReadingMarks")},
    {ViewOption::FoldBursts, QLatin1StringView("FoldBursts"), 1000, 30},
    {ViewOption::HoldLists, QLatin1StringView("HoldLists")},
    {ViewOption::ArrivalPill, QLatin1StringView("ArrivalPill")},
    {ViewOption::UnreadCounts, QLatin1StringView("UnreadCounts")},
    {ViewOption::QuietSources, QLatin1StringView("QuietSources")},
    {ViewOption::OtherYears, QLatin1StringView("OtherYears")},
    {ViewOption::RehearseKeySets, QLatin1StringView("RehearseKeySets")},
    {ViewOption::MarkHits, QLatin1StringView("MarkHits")},
    {ViewOption::AlertLooks, QLatin1StringView("AlertLooks")},
    {ViewOption::SearchOffers, QLatin1StringView("SearchOffers")},
    {ViewOption::PriceColumns, QLatin1StringView("PriceColumns"), 2, 1},
}};

constexpr const ViewOptionRow& rowOf(ViewOption option) {
    return viewOptionTable[static_cast<std::size_t>(option)];
}

// The options of one view. A value.
class WIREPANE_CONTRACT_EXPORT ViewOptions {
public:
    static ViewOptions read(const TRVCfgIO2& reader, const ViewSettingPath& path);
    // One of them as the store has it now.
    void readAgain(ViewOption option, const TRVCfgIO2& reader, const ViewSettingPath& path);
    // Writes those that the store lacks, each as the table says: for a host that offers its users all of
    // them.
    static void writeMissing(TRVCfgIO2& store, const ViewSettingPath& path);

    bool operator[](ViewOption option) const { return value(option) != 0; }
    int value(ViewOption option) const { return values[static_cast<std::size_t>(option)]; }
    void set(ViewOption option, int value) { values[static_cast<std::size_t>(option)] = value; }

private:
    std::array<int, viewOptionTable.size()> values{};
};

}  // namespace wirepane
