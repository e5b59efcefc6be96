// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/settings/colour_scheme.h"

namespace wirepane {

// How a topic's tone speaks: in its full colour, darker or lighter than that, or nearly grey.
enum class TopicVoice { Clear, Deep, Muted, Count };

// One of the tones of topics: readable on every ground that a row has, so that a topic keeps its colour on
// the selected row.
struct TopicTone {
    int hue = 0;  // its number in the table
    TopicVoice voice = TopicVoice::Clear;

    bool operator==(const TopicTone&) const = default;
};

constexpr int topicHueCount = 15;

// The angle of a hue in the OKLCH space, in degrees.
int topicHueAngle(int hue);
QColor topicColour(ColourScheme scheme, const TopicTone& tone);

// The tone that comes nearest to a colour that a store has for a topic.
TopicTone topicToneNear(const QColor& stored);
// The tone of a topic that has no colour: always the same one for a name.
TopicTone topicToneOfName(const QString& name);

}  // namespace wirepane
