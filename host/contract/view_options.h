// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QLatin1StringView>

#include <array>
#include <bitset>
#include <cstddef>

class TRVCfgIO2;

namespace wirepane {
struct ViewSettingPath;

// What a host may switch on for a view by its settings, beyond what a view does whose settings say nothing.
// Each is a boolean setting of the view "TRVNewsCtrlView"; absent or no boolean, it is off.
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
    FollowNewest,           // the newest row is selected until the reader goes to one himself
    Count
};

struct ViewOptionRow {
    ViewOption option;
    QLatin1StringView key;
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
    {ViewOption::FollowNewest, QLatin1StringView("FollowNewest")},
}};

// The options of one view. A value.
class WIREPANE_CONTRACT_EXPORT ViewOptions {
public:
    static ViewOptions read(const TRVCfgIO2& reader, const ViewSettingPath& path);
    // Writes those that the store lacks, switched on: for a host that offers its users all of them.
    static void writeMissing(TRVCfgIO2& store, const ViewSettingPath& path);

    bool operator[](ViewOption option) const { return on.test(static_cast<std::size_t>(option)); }

private:
    std::bitset<static_cast<std::size_t>(ViewOption::Count)> on;
};

}  // namespace wirepane
