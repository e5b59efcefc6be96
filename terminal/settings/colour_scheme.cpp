// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/colour_scheme.h"

#include <QLatin1StringView>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct NamedColour {
    QLatin1StringView name;
    QRgb light;
    QRgb dark;
};

constexpr NamedColour namedColours[] = {
    {QLatin1StringView("COLOR_LISTCTL_NORMALTEXT"), 0xff1b2430, 0xffd7dee8},
    {QLatin1StringView("COLOR_LISTCTL_BACKGROUND"), 0xffffffff, 0xff10151c},
    {QLatin1StringView("COLOR_LISTCTL_BACKGROUNDSLASH"), 0xfff2f5f9, 0xff161d26},
    {QLatin1StringView("COLOR_LISTCTL_CLICKLINE"), 0xffcfe0f7, 0xff24466f},
    {QLatin1StringView("COLOR_LISTCTL_CLICKLINE_GRAY"), 0xffdfe4ea, 0xff2b333d},
    {QLatin1StringView("COLOR_LISTCTL_HDBkCOLOR1"), 0xffdde3eb, 0xff222b37},
    {QLatin1StringView("COLOR_LISTCTL_HDTEXTCOLOR1"), 0xff3b4a5e, 0xffa9b7c9},
    {QLatin1StringView("COLOR_LISTCTL_OTHERLINE"), 0xffb4bfcc, 0xff3a4656},
    {QLatin1StringView("COLOR_QUOTE_RISE"), 0xffc02626, 0xffff7b7b},
    {QLatin1StringView("COLOR_QUOTE_FALL"), 0xff14743a, 0xff4cc38a},
};

struct PaletteColours {
    QRgb window, windowText, base, alternateBase, text, button, buttonText, highlight, highlightedText, mid,
        disabledText, link, brightText;
};

constexpr PaletteColours lightPalette{0xffeef1f5, 0xff1b2430, 0xffffffff, 0xfff2f5f9, 0xff1b2430,
                                      0xffe6eaf0, 0xff1b2430, 0xff2f6fc1, 0xffffffff, 0xffb4bfcc,
                                      0xff8a95a3, 0xff1f5fb0, 0xffc62828};
constexpr PaletteColours darkPalette{0xff1a212b, 0xffd7dee8, 0xff10151c, 0xff161d26, 0xffd7dee8,
                                     0xff27313e, 0xffd7dee8, 0xff2f6fc1, 0xffffffff, 0xff3a4656,
                                     0xff6c7887, 0xff6fa8ef, 0xffff6b6b};

}  // namespace

QString schemeName(ColourScheme scheme) {
    return scheme == ColourScheme::Dark ? u"dark"_s : u"light"_s;
}

std::optional<ColourScheme> schemeByName(const QString& name) {
    if (name == "light"_L1)
        return ColourScheme::Light;
    if (name == "dark"_L1)
        return ColourScheme::Dark;
    return std::nullopt;
}

QColor schemeColour(ColourScheme scheme, const QString& name) {
    for (const NamedColour& colour : namedColours) {
        if (name == colour.name)
            return QColor::fromRgb(scheme == ColourScheme::Dark ? colour.dark : colour.light);
    }
    return {};
}

QPalette schemePalette(ColourScheme scheme) {
    const PaletteColours& colours = scheme == ColourScheme::Dark ? darkPalette : lightPalette;
    QPalette palette(QColor::fromRgb(colours.button), QColor::fromRgb(colours.window));
    palette.setColor(QPalette::WindowText, colours.windowText);
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::AlternateBase, colours.alternateBase);
    palette.setColor(QPalette::ToolTipBase, colours.alternateBase);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::Text, colours.text);
    palette.setColor(QPalette::ButtonText, colours.buttonText);
    palette.setColor(QPalette::BrightText, colours.brightText);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::HighlightedText, colours.highlightedText);
    palette.setColor(QPalette::Mid, colours.mid);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::PlaceholderText, colours.disabledText);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colours.disabledText);
    return palette;
}

}  // namespace wirepane
