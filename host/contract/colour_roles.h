// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QColor>
#include <QLatin1StringView>

#include <array>
#include <cstddef>

namespace wirepane {

// What a colour is for. A host whose scheme knows roles answers to their names in
// CSyncInfo::SYS_crGetOtherColor, as it does to those of lists and quotes; one that does not has its windows
// drawn in the palette's colours.
enum class ColourRole {
    Ground,       // lists, stories, inputs
    Band,         // every second row
    Raised,       // windows, bars, headings, pop-ups
    Button,       // push buttons
    Hover,        // a row or button under the pointer
    Press,        // a button that is pressed or ticked
    Selected,     // the selected row of a list that has the keyboard
    SelectedOff,  // and of one that has not
    Arrived,      // a row that has just come
    Mark,         // the ground of a search hit
    Mark2,        // and of the second word's
    Text,
    Weak,      // read rows, headings, tags
    Disabled,  // text that is out of use
    Line,      // between areas
    Border,    // outlines of inputs, thumbs of scroll bars
    Accent,    // links, focus rings, the active tab
    OnAccent,  // text on the accent
    Up,        // a quote that has risen
    Down,      // and one that has fallen
    Warning,   // what is not as it should be: invented news, another moment than now
    Good,      // connected
    Flash,     // the ground of the flash chip, faults
    OnFlash,   // text on it
    Count
};

constexpr std::size_t colourRoleCount = static_cast<std::size_t>(ColourRole::Count);

// The names that hosts are asked for, in the order of ColourRole.
inline constexpr std::array<QLatin1StringView, colourRoleCount> colourRoleNames{
    QLatin1StringView("COLOR_GROUND"),   QLatin1StringView("COLOR_BAND"),
    QLatin1StringView("COLOR_RAISED"),   QLatin1StringView("COLOR_BUTTON"),
    QLatin1StringView("COLOR_HOVER"),    QLatin1StringView("COLOR_PRESS"),
    QLatin1StringView("COLOR_SELECTED"), QLatin1StringView("COLOR_SELECTED_OFF"),
    QLatin1StringView("COLOR_ARRIVED"),  QLatin1StringView("COLOR_MARK"),
    QLatin1StringView("COLOR_MARK2"),    QLatin1StringView("COLOR_TEXT"),
    QLatin1StringView("COLOR_WEAK"),     QLatin1StringView("COLOR_DISABLED"),
    QLatin1StringView("COLOR_LINE"),     QLatin1StringView("COLOR_BORDER"),
    QLatin1StringView("COLOR_ACCENT"),   QLatin1StringView("COLOR_ON_ACCENT"),
    QLatin1StringView("COLOR_UP"),       QLatin1StringView("COLOR_DOWN"),
    QLatin1StringView("COLOR_WARNING"),  QLatin1StringView("COLOR_GOOD"),
    QLatin1StringView("COLOR_FLASH"),    QLatin1StringView("COLOR_ON_FLASH"),
};

// The installed host's colour for a role, or `fallback` where its scheme lacks it. Interface thread only.
WIREPANE_CONTRACT_EXPORT QColor roleColour(ColourRole role, const QColor& fallback = {});

}  // namespace wirepane
