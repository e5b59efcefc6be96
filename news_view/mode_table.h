// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"

#include <QLatin1StringView>

#include <cstdint>
#include <span>

namespace wirepane {

// When a switch to a mode reads its list.
enum class LoadRule { FirstSwitch, EverySwitch, Never };

// What one function mode of the view is; its number is that of its list, its tab's item data and its grid
// slot.
struct ModeDescription {
    ListIndex list;
    QLatin1StringView captionKey;
    std::uint32_t maskBit;  // of the enabled-function mask
    LoadRule load;
    std::span<const int> controls;  // ids of the controls that it shows; all other switchable ones are hidden
};

// The description of a mode.
const ModeDescription& modeOf(ListIndex list);

// The modes in the order in which their grids and tabs are created.
std::span<const ListIndex> modesInOrderOfCreation();

// The ids of the controls that mode switching shows or hides.
std::span<const int> switchableControls();

inline constexpr std::uint32_t defaultFunctionMask = 0x6F;
inline constexpr std::uint32_t symbolNewsMask = 0x04;

// The bits of a stored mask that mean something.
std::uint32_t knownFunctions(std::uint32_t mask);

// True for exactly one enabled function: such a view has no tab strip.
bool isSingleFunction(std::uint32_t mask);

}  // namespace wirepane
