// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/mode_table.h"

#include "headline_list/language_keys.h"
#include "host/views/news_control_ids.h"

#include <array>
#include <bit>

namespace wirepane {

namespace {

constexpr std::array allControls{ids::datePicker, ids::serviceButton};
constexpr std::array categoryControls{ids::categoryCombo, ids::serviceButton};
constexpr std::array symbolControls{ids::serviceCombo, ids::symbolCombo, ids::serviceButton};
constexpr std::array searchControls{ids::dealsSearchButton, ids::searchEdit, ids::searchButton,
                                    ids::serviceButton, ids::searchLine};
constexpr std::array relationControls{ids::relationSearchButton, ids::serviceButton};
constexpr std::array warningControls{ids::warningSearchButton, ids::searchLine};

const std::array<ModeDescription, listCount> modes{{
    {ListIndex::All, keys::allNews, 0x01, LoadRule::FirstSwitch, allControls},
    {ListIndex::Category, keys::categoryNews, 0x02, LoadRule::EverySwitch, categoryControls},
    {ListIndex::Symbol, keys::symbolNews, symbolNewsMask, LoadRule::EverySwitch, symbolControls},
    {ListIndex::Search, keys::searchNews, 0x08, LoadRule::EverySwitch, searchControls},
    {ListIndex::Relation, keys::relationSearchNews, 0x08, LoadRule::FirstSwitch, relationControls},
    {ListIndex::Warrant, keys::warrantNews, 0x20, LoadRule::EverySwitch, {}},
    {ListIndex::WarningTerm, keys::warningSearchNews, 0x40, LoadRule::Never, warningControls},
}};

constexpr std::array creationOrder{ListIndex::All,    ListIndex::Category, ListIndex::Symbol,
                                   ListIndex::Search, ListIndex::Relation, ListIndex::WarningTerm,
                                   ListIndex::Warrant};

constexpr std::array switchable{ids::relationSearchButton, ids::dealsSearchButton,   ids::categoryCombo,
                                ids::symbolCombo,          ids::warningSearchButton, ids::searchButton,
                                ids::searchEdit,           ids::datePicker,          ids::serviceButton,
                                ids::serviceCombo,         ids::searchLine};

constexpr std::uint32_t sevenFunctions = 0x7F;

}  // namespace

const ModeDescription& modeOf(ListIndex list) {
    return modes[static_cast<std::size_t>(list)];
}

std::span<const ListIndex> modesInOrderOfCreation() {
    return creationOrder;
}

std::span<const int> switchableControls() {
    return switchable;
}

std::uint32_t knownFunctions(std::uint32_t mask) {
    return mask & sevenFunctions;
}

bool isSingleFunction(std::uint32_t mask) {
    return std::has_single_bit(knownFunctions(mask));
}

}  // namespace wirepane
