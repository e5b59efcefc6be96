// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>

namespace wirepane {

// The seven headline lists of a view. The numbers are those of the view's function modes.
enum class ListIndex : int { All = 0, Category, Symbol, Search, Relation, Warrant, WarningTerm };

inline constexpr int listCount = 7;

// Which services are asked for the headlines of a list's rows.
enum class FillServices { Selected, Every, WarrantOnly };

// What differs from list to list in filling its grid.
struct ListKind {
    ListIndex index;
    bool showDate;  // rows show date and time; else the time only
    FillServices fill;
};

inline constexpr std::array<ListKind, listCount> listKinds{{
    {ListIndex::All, false, FillServices::Selected},
    {ListIndex::Category, true, FillServices::Selected},
    {ListIndex::Symbol, true, FillServices::Selected},
    {ListIndex::Search, true, FillServices::Every},
    {ListIndex::Relation, false, FillServices::Selected},
    {ListIndex::Warrant, true, FillServices::WarrantOnly},
    {ListIndex::WarningTerm, true, FillServices::Every},
}};

inline constexpr const ListKind& kindOf(ListIndex list) {
    return listKinds[static_cast<std::size_t>(list)];
}

// The list of a mode number; nothing when it is outside 0 to 6.
inline constexpr std::optional<ListIndex> listOfNumber(int number) {
    if (number < 0 || number >= listCount)
        return std::nullopt;
    return static_cast<ListIndex>(number);
}

}  // namespace wirepane
