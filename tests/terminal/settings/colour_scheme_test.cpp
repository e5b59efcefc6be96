// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/colour_scheme.h"

#include "host/contract/sync_info.h"
#include "host/controls/hit_grounds.h"
#include "terminal/settings/topic_tones.h"
#include "tests/support/contrast.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>
#include <set>
#include <string>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using enum ColourRole;

constexpr std::initializer_list<ColourScheme> schemes{ColourScheme::Light, ColourScheme::Dark,
                                                      ColourScheme::HighContrast};
const std::vector<ColourRole> rows{Ground, Band, Hover, Selected, SelectedOff, Arrived};

std::string labelOf(ColourScheme scheme, ColourRole role) {
    return schemeName(scheme).toStdString() + " " + colourRoleNames.at(static_cast<std::size_t>(role)).data();
}

TEST(ColourSchemeTest, WhatIsReadHasContrastWithEveryGroundItStandsOn) {
    const struct {
        ColourRole front;
        std::vector<ColourRole> grounds;
        double least;
    } cases[] = {
        {Text,
         {Ground, Band, Hover, Selected, SelectedOff, Arrived, Raised, Button, Press, Mark, Mark2},
         4.5},
        {Weak, {Ground, Band, Hover, Selected, SelectedOff, Arrived, Raised, Button, Press}, 4.5},
        {Accent, {Ground, Band, Raised, Selected, Hover, Button}, 4.5},
        {Up, {Ground, Band, Hover, Selected, SelectedOff, Arrived, Raised}, 4.5},
        {Down, {Ground, Band, Hover, Selected, SelectedOff, Arrived, Raised}, 4.5},
        {Warning, {Raised, Ground}, 4.5},
        {Good, {Raised}, 4.5},
        {OnAccent, {Accent}, 4.5},
        {OnFlash, {Flash}, 4.5},
        {Flash, {Ground}, 3},
        {Border, {Ground, Raised, Band}, 3},
    };
    for (const ColourScheme scheme : schemes) {
        for (const auto& [front, grounds, least] : cases) {
            for (const ColourRole ground : grounds)
                EXPECT_GE(contrast(schemeColour(scheme, front), schemeColour(scheme, ground)), least)
                    << labelOf(scheme, front) << " on " << labelOf(scheme, ground);
        }
    }
}

TEST(ColourSchemeTest, TextIsReadOnTheGroundOfEveryHitAndTheseDiffer) {
    struct Host : CSyncInfo {
        Host() { setSettingCFG(this); }
        QColor SYS_crGetOtherColor(const QString& name) override {
            const auto role = std::find(colourRoleNames.begin(), colourRoleNames.end(), name);
            return schemeColour(scheme, static_cast<ColourRole>(role - colourRoleNames.begin()));
        }
        ColourScheme scheme = ColourScheme::Light;
    } host;
    for (const ColourScheme scheme : schemes) {
        host.scheme = scheme;
        std::set<QRgb> different;
        for (const QColor& ground : hitGrounds()) {
            EXPECT_GE(contrast(schemeColour(scheme, Text), ground), 4.5) << ground.name().toStdString();
            different.insert(ground.rgb());
        }
        EXPECT_EQ(different.size(), HitGrounds().size());
    }
}

TEST(ColourSchemeTest, TopicsKeepTheirColourOnEveryRowAndComeBackAsThemselves) {
    for (const ColourScheme scheme : schemes) {
        const double least = scheme == ColourScheme::HighContrast ? 7.0 : 4.6;
        for (int hue = 0; hue < topicHueCount; ++hue) {
            for (int voice = 0; voice < static_cast<int>(TopicVoice::Count); ++voice) {
                const TopicTone tone{hue, static_cast<TopicVoice>(voice)};
                const QColor colour = topicColour(scheme, tone);
                EXPECT_EQ(topicToneNear(colour).hue, hue) << colour.name().toStdString();
                for (const ColourRole ground : rows)
                    EXPECT_GE(contrast(colour, schemeColour(scheme, ground)), least)
                        << colour.name().toStdString() << " on " << labelOf(scheme, ground);
            }
        }
    }
}

TEST(ColourSchemeTest, AStoredColourTakesTheToneOfItsHueAndAName) {
    EXPECT_EQ(topicToneNear(QColor(u"#1f7fd1"_s)), (TopicTone{10, TopicVoice::Clear}));
    EXPECT_EQ(topicToneNear(QColor(u"#0b3a66"_s)), (TopicTone{10, TopicVoice::Deep}));
    EXPECT_EQ(topicToneNear(QColor(u"#6d7a8a"_s)).voice, TopicVoice::Muted);
    // FNV-1a of "" and "a", modulo 45.
    EXPECT_EQ(topicToneOfName(u""_s), (TopicTone{2166136261U % 45 % 15, TopicVoice(2166136261U % 45 / 15)}));
    EXPECT_EQ(topicToneOfName(u"a"_s), (TopicTone{0xe40c292cU % 45 % 15, TopicVoice(0xe40c292cU % 45 / 15)}));
}

TEST(ColourSchemeTest, NamesOfViewsAnswerWithRolesAndUpChangesPlacesWithDown) {
    const ColourScheme scheme = ColourScheme::Dark;
    EXPECT_EQ(schemeColour(scheme, u"COLOR_LISTCTL_NORMALTEXT"_s), schemeColour(scheme, Text));
    EXPECT_EQ(schemeColour(scheme, u"COLOR_ON_FLASH"_s), schemeColour(scheme, OnFlash));
    EXPECT_EQ(schemeColour(scheme, u"COLOR_QUOTE_RISE"_s, true), schemeColour(scheme, Down));
    EXPECT_EQ(schemeColour(scheme, u"COLOR_QUOTE_FALL"_s, true), schemeColour(scheme, Up));
    EXPECT_FALSE(schemeColour(scheme, u"COLOR_UNKNOWN"_s).isValid());
    for (const ColourScheme named : schemes)
        EXPECT_EQ(schemeByName(schemeName(named)), named);
    EXPECT_FALSE(schemeByName(u"pink"_s).has_value());
}

TEST(ColourSchemeTest, PalettesDifferInColourAndFillEveryGroup) {
    for (const ColourScheme scheme : schemes) {
        const QPalette palette = schemePalette(scheme);
        EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text), schemeColour(scheme, Disabled));
        EXPECT_EQ(palette.color(QPalette::Inactive, QPalette::Highlight), schemeColour(scheme, SelectedOff));
        EXPECT_EQ(palette.color(QPalette::Active, QPalette::Dark), schemeColour(scheme, Border));
    }
}

}  // namespace

}  // namespace wirepane
