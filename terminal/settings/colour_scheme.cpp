// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/colour_scheme.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// A role's colour in each scheme. Which contrasts hold between them, a test computes.
struct RoleColours {
    ColourRole role;
    QRgb light;
    QRgb dark;
    QRgb contrast;
};

constexpr std::array<RoleColours, colourRoleCount> roles{{
    {ColourRole::Ground, 0xffffffff, 0xff12161b, 0xff000000},
    {ColourRole::Band, 0xfff7f9fb, 0xff161b21, 0xff000000},
    {ColourRole::Raised, 0xffeef1f4, 0xff1c2229, 0xff000000},
    {ColourRole::Button, 0xffe1e6eb, 0xff2a323c, 0xff000000},
    {ColourRole::Hover, 0xffedf2f8, 0xff20272f, 0xff1f1f1f},
    {ColourRole::Press, 0xffd3dae2, 0xff323b46, 0xff3a3a3a},
    {ColourRole::Selected, 0xffd6e6fa, 0xff1c3a5e, 0xff003a6e},
    {ColourRole::SelectedOff, 0xffe4e8ed, 0xff29313b, 0xff2b2b2b},
    {ColourRole::Arrived, 0xfffff2c9, 0xff3b3214, 0xff3d3000},
    {ColourRole::Mark, 0xffffe899, 0xff6b5708, 0xff6e5600},
    {ColourRole::Mark2, 0xffcbeedb, 0xff1d5540, 0xff00563a},
    {ColourRole::Text, 0xff16202b, 0xffdce2e9, 0xffffffff},
    {ColourRole::Weak, 0xff55606d, 0xff9aa5b2, 0xffd9d9d9},
    {ColourRole::Disabled, 0xff98a1ac, 0xff5d6773, 0xffa0a0a0},
    {ColourRole::Line, 0xffd6dce3, 0xff2b333d, 0xffffffff},
    {ColourRole::Border, 0xff7e8894, 0xff6d7885, 0xffffffff},
    {ColourRole::Accent, 0xff1a5fb8, 0xff6cb0ff, 0xff7cc4ff},
    {ColourRole::OnAccent, 0xffffffff, 0xff0c1a2a, 0xff000000},
    {ColourRole::Up, 0xffc0261f, 0xffff8078, 0xffff9a93},
    {ColourRole::Down, 0xff0a7340, 0xff4fc98b, 0xff6fe3a6},
    {ColourRole::Warning, 0xff8a5500, 0xffe8b14a, 0xffffd166},
    {ColourRole::Good, 0xff0a7340, 0xff4fc98b, 0xff6fe3a6},
    {ColourRole::Flash, 0xffb3231c, 0xffcf3c33, 0xffffe14d},
    {ColourRole::OnFlash, 0xffffffff, 0xffffffff, 0xff000000},
}};

struct NamedRole {
    QLatin1StringView name;
    ColourRole role;
};

// What lists and quotes ask for.
constexpr NamedRole namedRoles[] = {
    {"COLOR_LISTCTL_NORMALTEXT"_L1, ColourRole::Text},
    {"COLOR_LISTCTL_BACKGROUND"_L1, ColourRole::Ground},
    {"COLOR_LISTCTL_BACKGROUNDSLASH"_L1, ColourRole::Band},
    {"COLOR_LISTCTL_CLICKLINE"_L1, ColourRole::Selected},
    {"COLOR_LISTCTL_CLICKLINE_GRAY"_L1, ColourRole::SelectedOff},
    {"COLOR_LISTCTL_HDBkCOLOR1"_L1, ColourRole::Raised},
    {"COLOR_LISTCTL_HDTEXTCOLOR1"_L1, ColourRole::Weak},
    {"COLOR_LISTCTL_OTHERLINE"_L1, ColourRole::Line},
    {"COLOR_QUOTE_RISE"_L1, ColourRole::Up},
    {"COLOR_QUOTE_FALL"_L1, ColourRole::Down},
};

std::optional<ColourRole> roleByName(const QString& name) {
    const auto role = std::find(colourRoleNames.begin(), colourRoleNames.end(), name);
    if (role != colourRoleNames.end())
        return static_cast<ColourRole>(role - colourRoleNames.begin());
    for (const NamedRole& named : namedRoles) {
        if (name == named.name)
            return named.role;
    }
    return std::nullopt;
}

constexpr std::array schemeNames{"light"_L1, "dark"_L1, "contrast"_L1};

}  // namespace

QString schemeName(ColourScheme scheme) {
    return schemeNames.at(static_cast<std::size_t>(scheme));
}

std::optional<ColourScheme> schemeByName(const QString& name) {
    const auto found = std::find(schemeNames.begin(), schemeNames.end(), name);
    if (found == schemeNames.end())
        return std::nullopt;
    return static_cast<ColourScheme>(found - schemeNames.begin());
}

QColor schemeColour(ColourScheme scheme, ColourRole role) {
    const RoleColours& colours = roles.at(static_cast<std::size_t>(role));
    switch (scheme) {
        case ColourScheme::Dark:
            return QColor::fromRgb(colours.dark);
        case ColourScheme::HighContrast:
            return QColor::fromRgb(colours.contrast);
        case ColourScheme::Light:
            break;
    }
    return QColor::fromRgb(colours.light);
}

QColor schemeColour(ColourScheme scheme, const QString& name, bool greenIsUp) {
    std::optional<ColourRole> role = roleByName(name);
    if (!role)
        return {};
    if (greenIsUp && role == ColourRole::Up)
        role = ColourRole::Down;
    else if (greenIsUp && role == ColourRole::Down)
        role = ColourRole::Up;
    return schemeColour(scheme, *role);
}

QPalette schemePalette(ColourScheme scheme) {
    constexpr std::pair<QPalette::ColorRole, ColourRole> pairs[] = {
        {QPalette::Window, ColourRole::Raised},
        {QPalette::WindowText, ColourRole::Text},
        {QPalette::Base, ColourRole::Ground},
        {QPalette::AlternateBase, ColourRole::Band},
        {QPalette::Text, ColourRole::Text},
        {QPalette::Button, ColourRole::Button},
        {QPalette::ButtonText, ColourRole::Text},
        {QPalette::BrightText, ColourRole::Flash},
        {QPalette::PlaceholderText, ColourRole::Weak},
        {QPalette::Highlight, ColourRole::Selected},
        {QPalette::HighlightedText, ColourRole::Text},
        {QPalette::Link, ColourRole::Accent},
        {QPalette::LinkVisited, ColourRole::Accent},
        {QPalette::ToolTipBase, ColourRole::Raised},
        {QPalette::ToolTipText, ColourRole::Text},
        {QPalette::Mid, ColourRole::Line},
        {QPalette::Dark, ColourRole::Border},
        {QPalette::Light, ColourRole::Hover},
        {QPalette::Midlight, ColourRole::Press},
        {QPalette::Shadow, ColourRole::Border},
    };
    QPalette palette;
    for (const auto& [part, role] : pairs)
        palette.setColor(QPalette::All, part, schemeColour(scheme, role));
    palette.setColor(QPalette::Inactive, QPalette::Highlight, schemeColour(scheme, ColourRole::SelectedOff));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                           QPalette::PlaceholderText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, schemeColour(scheme, ColourRole::Disabled));
    return palette;
}

}  // namespace wirepane
